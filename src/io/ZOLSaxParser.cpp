#include "io/ZOLSaxParser.h"

#include <libxml/SAX2.h>
#include <libxml/dict.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

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
    // Where the parse first went wrong: the first error libxml2 found, or where the parse was
    // stopped on purpose (a handler's limit, a document type declaration).
    ZOLReadPosition stoppedAt;
};

ZOLReadPosition currentPosition(xmlParserCtxtPtr context) {
    return {xmlSAX2GetLineNumber(context), xmlSAX2GetColumnNumber(context)};
}

// Where a failed parse went wrong: where it first went wrong, else where libxml2 last found the
// file broken, else where its input ended up.
ZOLReadPosition errorPosition(const ParseState& state) {
    if (state.stoppedAt.known())
        return state.stoppedAt;
    if (const xmlError* error = xmlCtxtGetLastError(state.context); error && error->line > 0)
        return {error->line, error->int2 > 0 ? error->int2 : 1};
    return currentPosition(state.context);
}

void stop(ParseState& state) {
    if (!state.stoppedAt.known())
        state.stoppedAt = currentPosition(state.context);
    state.refused = true;
    xmlStopParser(state.context);
}

ParseState& stateOf(void* ctx) {
    return *static_cast<ParseState*>(ctx);
}

std::string_view view(const xmlChar* text, int length) {
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)};
}

// The element's or attribute's name as the file writes it: "prefix:name", or the name alone.
// Both come out of libxml2's dictionary of the parse, which holds one copy of each name until
// the parse ends: a name always arrives at the same address, and no other name at it.
std::string_view qualifiedName(xmlParserCtxtPtr context, const xmlChar* localname,
                               const xmlChar* prefix) {
    const xmlChar* name = prefix ? xmlDictQLookup(context->dict, prefix, localname) : localname;
    return name ? reinterpret_cast<const char*>(name) : std::string_view();
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
    if (state.handler.aborted() || state.failure)
        stop(state);
}

void onStartElement(void* ctx, const xmlChar* localname, const xmlChar* prefix, const xmlChar*, int,
                    const xmlChar**, int attributeCount, int, const xmlChar** attributes) {
    dispatch(ctx, [&](ZOLSaxHandler& handler) {
        const xmlParserCtxtPtr context = stateOf(ctx).context;
        ZOLSaxHandler::Attributes list;
        list.reserve(static_cast<std::size_t>(attributeCount));
        for (int i = 0; i < attributeCount; ++i) {
            const xmlChar** a = attributes + 5 * i;
            list.emplace_back(std::string(qualifiedName(context, a[0], a[1])),
                              attributeValue(a[3], a[4]));
        }
        handler.startElement(qualifiedName(context, localname, prefix), list);
    });
}

void onEndElement(void* ctx, const xmlChar* localname, const xmlChar* prefix, const xmlChar*) {
    dispatch(ctx, [&](ZOLSaxHandler& handler) {
        handler.endElement(qualifiedName(stateOf(ctx).context, localname, prefix));
    });
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
    stop(stateOf(ctx));
}

void onEntityDecl(void* ctx, const xmlChar*, int, const xmlChar*, const xmlChar*, xmlChar*) {
    onInternalSubset(ctx, nullptr, nullptr, nullptr);
}

xmlParserInputPtr onResolveEntity(void*, const xmlChar*, const xmlChar*) {
    return nullptr;
}

// Errors are reported to the user by the reader's own alert; libxml2 must not print them.
void onStructuredError(void*, xmlErrorPtr) {}

// libxml2 reads on after the first error of a file, and the later ones are only its
// consequences: the first is where the user should look.
void onParseError(void* ctx, xmlErrorPtr error) {
    if (!ctx || !error || error->line <= 0)
        return;
    ParseState& state = stateOf(ctx);
    if (!state.stoppedAt.known())
        state.stoppedAt = {error->line, error->int2 > 0 ? error->int2 : 1};
}
void onGenericError(void*, const char*, ...) {}

// A few errors (text that the encoding its declaration names cannot convert, for one) are raised
// outside the parser's context, on libxml2's error channel for the thread, which prints them on
// stderr. For the length of a parse that channel is silenced; the parse fails all the same.
class QuietErrorChannel {
public:
    QuietErrorChannel()
        : structured_(xmlStructuredError), structuredContext_(xmlStructuredErrorContext),
          generic_(xmlGenericError), genericContext_(xmlGenericErrorContext) {
        xmlSetStructuredErrorFunc(nullptr, onStructuredError);
        xmlSetGenericErrorFunc(nullptr, onGenericError);
    }
    ~QuietErrorChannel() {
        xmlSetStructuredErrorFunc(structuredContext_, structured_);
        xmlSetGenericErrorFunc(genericContext_, generic_);
    }
    QuietErrorChannel(const QuietErrorChannel&) = delete;
    QuietErrorChannel& operator=(const QuietErrorChannel&) = delete;

private:
    xmlStructuredErrorFunc structured_;
    void* structuredContext_;
    xmlGenericErrorFunc generic_;
    void* genericContext_;
};

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
    sax.serror = onParseError;
    return sax;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

bool ZOLSaxParser::withinMarkupLimits(std::string_view bytes) {
    int declarations = 0;
    for (auto at = bytes.find("xmlns"); at != std::string_view::npos;
         at = bytes.find("xmlns", at + 5))
        if (++declarations > kMaxNamespaceDeclarations)
            return false;
    // An attribute is always a name, "=", optional blanks and a quote, and an attribute value
    // cannot hold "<"; so the attributes of a start tag are at most the "=" followed by a
    // quote between its "<" and the next one. The scan jumps from "=" to "=".
    const char* const begin = bytes.data();
    const char* const end = begin + bytes.size();
    int attributes = 0;
    const char* previous = begin;
    for (auto* eq = static_cast<const char*>(std::memchr(begin, '=', bytes.size())); eq;
         eq = static_cast<const char*>(
             std::memchr(eq + 1, '=', static_cast<std::size_t>(end - eq - 1)))) {
        if (std::memchr(previous, '<', static_cast<std::size_t>(eq - previous)))
            attributes = 0;
        previous = eq;
        const char* next = eq + 1;
        while (next < end && isBlank(*next))
            ++next;
        if (next < end && (*next == '"' || *next == '\'') && ++attributes > kMaxAttributesPerTag)
            return false;
    }
    return true;
}

bool ZOLSaxParser::parse(std::string_view bytes, ZOLSaxHandler& handler) {
    if (bytes.empty() || bytes.size() > kMaxDocumentBytes || !withinMarkupLimits(bytes)) {
        handler.parseError();
        return false;
    }
    xmlInitParser();
    const QuietErrorChannel quiet;
    xmlParserCtxtPtr context =
        xmlCreateMemoryParserCtxt(bytes.data(), static_cast<int>(bytes.size()));
    if (!context) {
        handler.parseError();
        return false;
    }
    xmlSAXHandler sax = makeHandler();
    xmlSAXHandlerPtr ownHandler = context->sax;
    context->sax = &sax;
    ParseState state{handler, context, false, nullptr, {}};
    context->userData = &state;
    // No entity substitution, no DTD loading or validation, no network, libxml2's size and
    // depth limits left on (no XML_PARSE_HUGE).
    xmlCtxtUseOptions(context, XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    xmlParseDocument(context);
    const bool wellFormed = context->wellFormed != 0 && !state.refused;
    if (!wellFormed)
        handler.setErrorPosition(errorPosition(state));
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
