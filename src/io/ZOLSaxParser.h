#pragma once
#include "io/ZOLSaxHandler.h"

#include <cstddef>
#include <string_view>

// Runs libxml2's SAX2 parser over a file's bytes for one of the file readers.
//
// A workbook, price or template file may come from someone else, so the parser is set up so
// that opening it cannot reach outside the file or keep the program busy:
// - nothing is loaded: no DTD, no external entity, no network (a document type declaration
//   is refused outright, which also rules out entity declarations and attribute defaults);
// - libxml2's own limits stay on (nesting depth, name and text sizes);
// - a document larger than kMaxDocumentBytes is refused unread;
// - start tags with more than kMaxAttributesPerTag attributes and documents with more than
//   kMaxNamespaceDeclarations namespace declarations are refused before parsing, because the
//   parser compares every attribute with all earlier ones and looks every name up through the
//   declarations in scope, which hundreds of thousands of them would turn into hours.
// Files the program writes use one attribute per tag and two namespace declarations.
// Every refusal is reported to the handler as a parse error.
class ZOLSaxParser {
public:
    ZOLSaxParser() = delete;

    static constexpr std::size_t kMaxDocumentBytes = 32u << 20;
    static constexpr int kMaxAttributesPerTag = 256;
    static constexpr int kMaxNamespaceDeclarations = 64;

    // Parses the bytes; returns true when the document was read to its end (the handler got
    // endDocument) and false after a parse error (the handler got parseError).
    static bool parse(std::string_view bytes, ZOLSaxHandler& handler);

    // Whether the bytes stay within the attribute and namespace limits above.
    static bool withinMarkupLimits(std::string_view bytes);
};
