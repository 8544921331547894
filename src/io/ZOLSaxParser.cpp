#include "io/ZOLSaxParser.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <climits>
#include <cstring>
#include <exception>
#include <string>

namespace {

struct ParseState {
    ZOLSaxHandler& handler;
    xmlParserCtxtPtr context = nullptr;
    bool refused = false;
    std::exception_ptr failure;
};

ParseState& stateOf(void* ctx) {
    return *static_cast<ParseState*>(ctx);
}

std::string_view view(const xmlChar* text, int length) {
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)};
}

std::string qualifiedName(const xmlChar* localname, const xmlChar* prefix) {
    std::string name;
    if (prefix) {
        name = reinterpret_cast<const char*>(prefix);
        name += ':';
    }
    name += reinterpret_cast<const char*>(localname);
    return name;
}

// Without entity substitution libxml2 hands an attribute's "&" on as the character reference
// "&#38;" (every other reference arrives resolved); the reader wants the character itself.
std::string attributeValue(const xmlChar* begin, const xmlChar* end) {
    std::string_view raw(reinterpret_cast<const char*>(begin),
                         static_cast<std::size_t>(end - begin));
    std::string value;
    value.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size();) {
        if (raw.compare(i, 5, "&#38;") == 0) {
            value += '&';
            i += 5;
        } else {
            value += raw[i++];
        }
    }
    return value;
}

// Runs one handler call; a handler that asked to stop, or threw, halts the parser. Nothing is
// allowed to unwind through libxml2's frames: an exception is kept and thrown after the parse.
template <typename Call> void dispatch(void* ctx, Call call) {
    ParseState& state = stateOf(ctx);
    if (state.refused || state.failure)
        return;
    try {
        call(state.handler);
    } catch (...) {
        state.failure = std::current_exception();
    }
    if (state.handler.aborted() || state.failure) {
        state.refused = true;
        xmlStopParser(state.context);
    }
}

void onStartElement(void* ctx, const xmlChar* localname, const xmlChar* prefix, const xmlChar*, int,
                    const xmlChar**, int attributeCount, int, const xmlChar** attributes) {
    dispatch(ctx, [&](ZOLSaxHandler& handler) {
        ZOLSaxHandler::Attributes list;
        list.reserve(static_cast<std::size_t>(attributeCount));
        for (int i = 0; i < attributeCount; ++i) {
            const xmlChar** a = attributes + 5 * i;
            list.emplace_back(qualifiedName(a[0], a[1]), attributeValue(a[3], a[4]));
        }
        handler.startElement(qualifiedName(localname, prefix), list);
    });
}

void onEndElement(void* ctx, const xmlChar* localname, const xmlChar* prefix, const xmlChar*) {
    dispatch(ctx,
             [&](ZOLSaxHandler& handler) { handler.endElement(qualifiedName(localname, prefix)); });
}

void onCharacters(void* ctx, const xmlChar* text, int length) {
    dispatch(ctx, [&](ZOLSaxHandler& handler) { handler.characters(view(text, length)); });
}

void onIgnorableWhitespace(void* ctx, const xmlChar* text, int length) {
    dispatch(ctx, [&](ZOLSaxHandler& handler) { handler.ignorableWhitespace(view(text, length)); });
}

// The readers take no text from CDATA sections: the files never hold one.
void onCDataBlock(void*, const xmlChar*, int) {}

// A document type declaration could declare entities (the billion-laughs kind), pull in an
// external subset or add default attributes to every tag; no file of ours has one.
void onInternalSubset(void* ctx, const xmlChar*, const xmlChar*, const xmlChar*) {
    ParseState& state = stateOf(ctx);
    state.refused = true;
    xmlStopParser(state.context);
}

void onEntityDecl(void* ctx, const xmlChar*, int, const xmlChar*, const xmlChar*, xmlChar*) {
    onInternalSubset(ctx, nullptr, nullptr, nullptr);
}

xmlParserInputPtr onResolveEntity(void*, const xmlChar*, const xmlChar*) {
    return nullptr;
}

// Errors are reported to the user by the reader's own alert; libxml2 must not print them.
void onStructuredError(void*, xmlErrorPtr) {}

xmlSAXHandler makeHandler() {
    xmlSAXHandler sax;
    std::memset(&sax, 0, sizeof sax);
    sax.initialized = XML_SAX2_MAGIC;
    sax.startElementNs = onStartElement;
    sax.endElementNs = onEndElement;
    sax.characters = onCharacters;
    sax.ignorableWhitespace = onIgnorableWhitespace;
    sax.cdataBlock = onCDataBlock;
    sax.internalSubset = onInternalSubset;
    sax.entityDecl = onEntityDecl;
    sax.resolveEntity = onResolveEntity;
    sax.serror = onStructuredError;
    return sax;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

bool ZOLSaxParser::withinMarkupLimits(std::string_view bytes) {
    // An attribute is always a name, "=", optional blanks and a quote, and an attribute value
    // cannot hold "<"; so the attributes of a start tag are at most the "=" followed by a
    // quote between its "<" and the next one.
    static constexpr std::string_view xmlns = "xmlns";
    int attributes = 0;
    int declarations = 0;
    const std::size_t n = bytes.size();
    for (std::size_t i = 0; i < n; ++i) {
        const char c = bytes[i];
        if (c == '<') {
            attributes = 0;
        } else if (c == '=') {
            std::size_t j = i + 1;
            while (j < n && isBlank(bytes[j]))
                ++j;
            if (j < n && (bytes[j] == '"' || bytes[j] == '\'') &&
                ++attributes > kMaxAttributesPerTag)
                return false;
        } else if (c == 'x' && bytes.compare(i, xmlns.size(), xmlns) == 0) {
            if (++declarations > kMaxNamespaceDeclarations)
                return false;
        }
    }
    return true;
}

bool ZOLSaxParser::parse(std::string_view bytes, ZOLSaxHandler& handler) {
    if (bytes.empty() || bytes.size() > kMaxDocumentBytes || !withinMarkupLimits(bytes)) {
        handler.parseError();
        return false;
    }
    xmlInitParser();
    xmlParserCtxtPtr context =
        xmlCreateMemoryParserCtxt(bytes.data(), static_cast<int>(bytes.size()));
    if (!context) {
        handler.parseError();
        return false;
    }
    xmlSAXHandler sax = makeHandler();
    xmlSAXHandlerPtr ownHandler = context->sax;
    context->sax = &sax;
    ParseState state{handler, context, false, nullptr};
    context->userData = &state;
    // No entity substitution, no DTD loading or validation, no network, libxml2's size and
    // depth limits left on (no XML_PARSE_HUGE).
    xmlCtxtUseOptions(context, XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    xmlParseDocument(context);
    const bool wellFormed = context->wellFormed != 0 && !state.refused;
    context->sax = ownHandler;
    context->userData = context;
    xmlFreeParserCtxt(context);
    if (state.failure)
        std::rethrow_exception(state.failure);
    if (wellFormed)
        handler.endDocument();
    else
        handler.parseError();
    return wellFormed;
}
