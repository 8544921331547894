// The event parser under the three file readers: how it delivers text, and that a hostile
// file ends in a parse error rather than in a load from outside, a blow-up or a hang.
#include "io/ZOLSaxParser.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

// Writes every event as one line: "<name attr=value", "'chunk'", "~'blank'", "</name", "END",
// "ERROR".
class EventLog : public ZOLSaxHandler {
public:
    std::vector<std::string> events;
    int abortAfterStarts = -1;

    void startElement(std::string_view name, const Attributes& attributes) override {
        std::string line = "<" + std::string(name);
        for (const auto& [key, value] : attributes)
            line += " " + key + "=" + value;
        events.push_back(line);
        if (abortAfterStarts >= 0 && --abortAfterStarts < 0)
            abortParse();
    }
    void characters(std::string_view chunk) override {
        events.push_back("'" + std::string(chunk) + "'");
    }
    void ignorableWhitespace(std::string_view chunk) override {
        events.push_back("~'" + std::string(chunk) + "'");
    }
    void endElement(std::string_view name) override { events.push_back("</" + std::string(name)); }
    void endDocument() override { events.push_back("END"); }
    void parseError() override { events.push_back("ERROR"); }
};

std::vector<std::string> parse(const std::string& xml, bool* ok = nullptr) {
    EventLog log;
    const bool result = ZOLSaxParser::parse(xml, log);
    if (ok)
        *ok = result;
    return log.events;
}

std::string nested(int depth) {
    std::string xml;
    for (int i = 0; i < depth; ++i)
        xml += "<a>";
    for (int i = 0; i < depth; ++i)
        xml += "</a>";
    return xml;
}

using Events = std::vector<std::string>;

} // namespace

TEST(ZOLSaxParser, WhitespaceBetweenTagsArrivesAsOneChunkStartingWithTheNewline) {
    const std::string xml = "<?xml version=\"1.0\"?>\n<Workbook>\n\t<Worksheets>\n\t\t<Worksheet "
                            "Name=\"Main Floor\">\n\t\t</Worksheet>\n\t</Worksheets>\n</Workbook>";
    EXPECT_EQ(parse(xml), (Events{"<Workbook", "'\n\t'", "<Worksheets", "'\n\t\t'",
                                  "<Worksheet Name=Main Floor", "'\n\t\t'", "</Worksheet", "'\n\t'",
                                  "</Worksheets", "'\n'", "</Workbook", "END"}));
    // The same file saved with Windows line ends delivers the same chunks.
    std::string crlf;
    for (char c : xml)
        crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    EXPECT_EQ(parse(crlf), parse(xml));
}

TEST(ZOLSaxParser, TextArrivesInTheChunksTheReadersGather) {
    // An ASCII value is one chunk; an entity reference is a chunk of its own; a line break inside
    // a value stays inside the chunk; a value that starts with a line break is its own chunk.
    EXPECT_EQ(parse("<P>12.500000</P>"), (Events{"<P", "'12.500000'", "</P", "END"}));
    EXPECT_EQ(parse("<P>Smith &amp; Sons</P>"),
              (Events{"<P", "'Smith '", "'&'", "' Sons'", "</P", "END"}));
    EXPECT_EQ(parse("<P>a\nb</P>"), (Events{"<P", "'a\nb'", "</P", "END"}));
    EXPECT_EQ(parse("<P>\nb</P>"), (Events{"<P", "'\nb'", "</P", "END"}));
    EXPECT_EQ(parse("<P>&#10;b</P>"), (Events{"<P", "'\n'", "'b'", "</P", "END"}));
    // CDATA sections and comments give no text.
    EXPECT_EQ(parse("<P><![CDATA[x]]><!-- y --></P>"), (Events{"<P", "</P", "END"}));
}

TEST(ZOLSaxParser, AttributesAndNamesComeAsWritten) {
    EXPECT_EQ(parse("<W Name=\"A &amp; B &lt;1&gt; &#38;&#x41;\"/>"),
              (Events{"<W Name=A & B <1> &A", "</W", "END"}));
    EXPECT_EQ(parse("<W Name='a&amp;#38;b'/>"), (Events{"<W Name=a&#38;b", "</W", "END"}));
    // Prefixed names keep their prefix, declared or not; namespace declarations are not
    // attributes.
    EXPECT_EQ(parse("<x:Workbook xmlns:x=\"urn:x\" xsi:Name=\"n\"/>"),
              (Events{"<x:Workbook xsi:Name=n", "</x:Workbook", "END"}));
}

TEST(ZOLSaxParser, MalformedDocumentsEndInOneParseError) {
    bool ok = true;
    // Events before the error are delivered; nothing after it.
    EXPECT_EQ(parse("<a><b>x</b><c></a>", &ok), (Events{"<a", "<b", "'x'", "</b", "<c", "ERROR"}));
    EXPECT_FALSE(ok);
    for (const std::string& xml :
         {std::string(), std::string("<P>A & B</P>"), std::string("<a></a><b/>"),
          std::string("<a>\xC3\x28</a>"), std::string("<a>\0</a>", 8),
          std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
          std::string("<?xml version=\"1.0\" encoding=\"no-such\"?><a/>"),
          std::string("<?xml version=\"1.0\" encoding=\"Shift_JIS\"?><a>\xff\xfe</a>")})
        EXPECT_EQ(parse(xml).back(), "ERROR") << xml;
    // A declared 8-bit encoding is honoured.
    EXPECT_EQ(parse("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xE9</a>"),
              (Events{"<a", "'\xC3\xA9'", "</a", "END"}));
}

TEST(ZOLSaxParser, NothingOutsideTheFileIsLoadedAndNoEntityIsExpanded) {
    // External entities (a local file, the network) and external DTDs are never fetched: any
    // document type declaration is refused before its subset is read.
    for (const std::string xml : {
             "<!DOCTYPE a [<!ENTITY x SYSTEM \"file:///etc/passwd\">]><a>&x;</a>",
             "<!DOCTYPE a [<!ENTITY x SYSTEM \"http://127.0.0.1:9/x\">]><a>&x;</a>",
             "<!DOCTYPE a SYSTEM \"http://127.0.0.1:9/a.dtd\"><a/>",
             "<!DOCTYPE a [<!ENTITY % p SYSTEM \"file:///etc/passwd\"> %p;]><a/>",
             "<!DOCTYPE a><a/>",
             // Entity expansion (the "billion laughs") never starts.
             "<!DOCTYPE l [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">"
             "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\">]><l>&c;&c;&c;&c;&c;&c;&c;&c;</l>",
         }) {
        const Events events = parse(xml);
        EXPECT_EQ(events, (Events{"ERROR"})) << xml;
    }
    // An undeclared entity is a plain parse error.
    EXPECT_EQ(parse("<a>&x;</a>"), (Events{"<a", "ERROR"}));
}

TEST(ZOLSaxParser, DeepNestingOversizedAndAttributeFloodedDocumentsAreRefusedQuickly) {
    bool ok = false;
    parse(nested(200), &ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(parse(nested(100000)).back(), "ERROR"); // the parser's depth limit
    EXPECT_EQ(parse("<a>" + std::string(ZOLSaxParser::kMaxDocumentBytes, 'x') + "</a>"),
              (Events{"ERROR"}));
    // Hundreds of thousands of attributes on one tag, or of namespace declarations, would keep
    // the parser busy for minutes; they are refused before parsing. A tag may carry a few
    // hundred attributes, and "=" in text does not count.
    auto attributes = [](int count, const std::string& form) {
        std::string tag = "<a";
        for (int i = 0; i < count; ++i)
            tag += " " + form + std::to_string(i) + "=\"\"";
        return tag + "/>";
    };
    EXPECT_EQ(parse(attributes(200000, "a")), (Events{"ERROR"}));
    EXPECT_EQ(parse(attributes(250, "xmlns:p")), (Events{"ERROR"}));
    const std::string most = attributes(ZOLSaxParser::kMaxAttributesPerTag, "a");
    EXPECT_TRUE(ZOLSaxParser::withinMarkupLimits(most));
    EXPECT_FALSE(ZOLSaxParser::withinMarkupLimits(most + "<b c='' " + most.substr(2)));
    EXPECT_TRUE(ZOLSaxParser::withinMarkupLimits("<a>" + std::string(10000, '=') + "</a>"));
}

TEST(ZOLSaxParser, AHandlerCanStopTheParse) {
    EventLog log;
    log.abortAfterStarts = 1;
    EXPECT_FALSE(ZOLSaxParser::parse("<a><b><c/></b></a>", log));
    EXPECT_EQ(log.events, (Events{"<a", "<b", "ERROR"}));

    // A handler that throws does not unwind through the parser; the exception arrives after it.
    class Thrower : public EventLog {
        void startElement(std::string_view, const Attributes&) override {
            throw std::runtime_error("full");
        }
    } thrower;
    EXPECT_THROW(ZOLSaxParser::parse("<a><b/></a>", thrower), std::runtime_error);
    EXPECT_TRUE(thrower.events.empty());
}
