#pragma once
#include "io/ZOLReadStatus.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a file reader hears from the XML event parser, in document order: start tags with their
// attributes, character chunks as the parser delivers them, ignorable whitespace, end tags, and
// then either the end of the document or a parse error (never both). For the length of a parse
// an element's name is always handed on at the same address, and no other name at it.
class ZOLSaxHandler {
public:
    // A start tag's attributes as (qualified name, value) pairs, entity references resolved.
    using Attributes = std::vector<std::pair<std::string, std::string>>;

    virtual ~ZOLSaxHandler() = default;

    virtual void startElement(std::string_view name, const Attributes& attributes) = 0;
    virtual void characters(std::string_view chunk) = 0;
    virtual void ignorableWhitespace(std::string_view chunk) = 0;
    virtual void endElement(std::string_view name) = 0;
    virtual void endDocument() = 0;
    virtual void parseError() = 0;

    // A handler that finds the file beyond what it will hold (see the readers' limits) stops
    // the parse; the parser then reports it as a parse error.
    void abortParse() { aborted_ = true; }
    bool aborted() const { return aborted_; }

    // Where the parse stopped, set by the parser before it reports a parse error.
    const ZOLReadPosition& errorPosition() const { return errorPosition_; }
    void setErrorPosition(const ZOLReadPosition& position) { errorPosition_ = position; }

    static std::optional<std::string> attribute(const Attributes& attributes,
                                                std::string_view name) {
        for (const auto& [key, value] : attributes)
            if (key == name)
                return value;
        return std::nullopt;
    }

private:
    bool aborted_ = false;
    ZOLReadPosition errorPosition_;
};
