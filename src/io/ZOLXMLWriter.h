#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The pieces every file the product writes shares: the declaration line, the two schema
// namespaces on the root element, tab indentation and the escaping of text.
//
// Text the user typed (names, units, the project header) goes into the files as typed, with
// one exception: the four markup characters & < > " are written as &amp; &lt; &gt; &quot;.
// Written as they stand they would make a file that no reader, ours included, can open again,
// and one "&" in a client's name would lose the whole job at the next autosave. Text without
// those characters is written byte for byte as it always was; the readers decode the entities.
class ZOLXMLWriter {
public:
    ZOLXMLWriter() = delete;

    static constexpr const char* kDeclaration = "<?xml version=\"1.0\"?>\n";
    static constexpr const char* kSchemaNamespaces =
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
        "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\"";

    // The declaration and the root start tag with the namespaces, ready for the first child.
    static std::string openDocument(const char* root) {
        std::string out;
        appendOpenDocument(out, root);
        return out;
    }
    static void appendOpenDocument(std::string& out, const char* root) {
        out += kDeclaration;
        out += '<';
        out += root;
        out += ' ';
        out += kSchemaNamespaces;
        out += ">\n";
    }
    // The text with the markup characters written as entities; an absent text stays absent
    // (and is written "(null)" as before).
    static std::string escape(std::string_view text);
    static std::string escape(const std::string& text) { return escape(std::string_view(text)); }
    static std::optional<std::string> escape(const std::optional<std::string>& text) {
        if (!text)
            return std::nullopt;
        return escape(std::string_view(*text));
    }

    static std::string tabs(int32_t depth) {
        return std::string(depth > 0 ? static_cast<std::size_t>(depth) : 0U, '\t');
    }
};
