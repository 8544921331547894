#pragma once
#include <cstdint>
#include <string>

// The pieces every file the product writes shares: the declaration line, the two schema
// namespaces on the root element and tab indentation. Values are written verbatim.
class ZOLXMLWriter {
public:
    ZOLXMLWriter() = delete;

    static constexpr const char* kDeclaration = "<?xml version=\"1.0\"?>\n";
    static constexpr const char* kSchemaNamespaces =
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
        "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\"";

    // The declaration and the root start tag with the namespaces, ready for the first child.
    static std::string openDocument(const char* root) {
        return std::string(kDeclaration) + "<" + root + " " + kSchemaNamespaces + ">\n";
    }
    static std::string tabs(int32_t depth) {
        return std::string(depth > 0 ? static_cast<std::size_t>(depth) : 0U, '\t');
    }
};
