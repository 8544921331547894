// The event parser under the three file readers: how it delivers text, and that a hostile
// file ends in a parse error rather than in a load from outside, a blow-up or a hang.
#include "io/ZOLSaxParser.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

namespace {

// Writes every event, separated by "|": "<name attr=value", "'chunk'", "~'blank'", "</name",
// "END", "ERROR".
class EventLog : public ZOLSaxHandler {
public:
    std::string events;
    int abortAfterStarts = -1;

    void add(const std::string& event) { events += (events.empty() ? "" : "|") + event; }
    void startElement(std::string_view name, const Attributes& attributes) override {
        std::string line = "<" + std::string(name);
        for (const auto& [key, value] : attributes)
            line += " " + key + "=" + value;
        add(line);
        if (abortAfterStarts >= 0 && --abortAfterStarts < 0)
            abortParse();
    }
    void characters(std::string_view chunk) override { add("'" + std::string(chunk) + "'"); }
    void ignorableWhitespace(std::string_view chunk) override {
        add("~'" + std::string(chunk) + "'");
    }
    void endElement(std::string_view name) override { add("</" + std::string(name)); }
    void endDocument() override { add("END"); }
    void parseError() override { add("ERROR"); }
};

std::string parse(const std::string& xml, bool* ok = nullptr) {
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

} // namespace

TEST(ZOLSaxParser, TextAttributesAndNamesArriveAsTheReadersGatherThem) {
    const std::pair<std::string, std::string> documents[] = {
        // Whitespace between tags arrives as one chunk starting with the newline.
        {"<?xml version=\"1.0\"?>\n<Workbook>\n\t<Worksheets>\n\t\t<Worksheet Name=\"Main "
         "Floor\">\n\t\t</Worksheet>\n\t</Worksheets>\n</Workbook>",
         "<Workbook|'\n\t'|<Worksheets|'\n\t\t'|<Worksheet Name=Main Floor|'\n\t\t'|</Worksheet|"
         "'\n\t'|</Worksheets|'\n'|</Workbook|END"},
        // An ASCII value is one chunk; a character reference is a chunk of its own. (What the
        // workbook reader makes of entities and line breaks in a value: its own tests.)
        {"<P>12.500000</P>", "<P|'12.500000'|</P|END"},
        {"<P>&#10;b</P>", "<P|'\n'|'b'|</P|END"},
        // CDATA sections and comments give no text.
        {"<P><![CDATA[x]]><!-- y --></P>", "<P|</P|END"},
        // Attributes come as written.
        {"<W Name=\"A &amp; B &lt;1&gt; &#38;&#x41;\"/>", "<W Name=A & B <1> &A|</W|END"},
        {"<W Name='a&amp;#38;b'/>", "<W Name=a&#38;b|</W|END"},
        // Prefixed names keep their prefix, declared or not; namespace declarations are not
        // attributes.
        {"<x:Workbook xmlns:x=\"urn:x\" xsi:Name=\"n\"/>",
         "<x:Workbook xsi:Name=n|</x:Workbook|END"},
        // A declared 8-bit encoding is honoured.
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xE9</a>", "<a|'\xC3\xA9'|</a|END"},
    };
    for (const auto& [xml, events] : documents)
        EXPECT_EQ(parse(xml), events) << xml;
    // The same file saved with Windows line ends delivers the same chunks.
    std::string crlf;
    for (char c : documents[0].first)
        crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    EXPECT_EQ(parse(crlf), documents[0].second);
}

TEST(ZOLSaxParser, MalformedAndHostileDocumentsAndAStoppingHandlerEndInOneParseError) {
    bool ok = true;
    // Events before the error are delivered; nothing after it.
    EXPECT_EQ(parse("<a><b>x</b><c></a>", &ok), "<a|<b|'x'|</b|<c|ERROR");
    EXPECT_FALSE(ok);
    for (const std::string& xml :
         {std::string(), std::string("<P>A & B</P>"), std::string("<a></a><b/>"),
          std::string("<a>\xC3\x28</a>"), std::string("<a>\0</a>", 8),
          std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16),
          std::string("<?xml version=\"1.0\" encoding=\"no-such\"?><a/>"),
          std::string("<?xml version=\"1.0\" encoding=\"Shift_JIS\"?><a>\xff\xfe</a>")})
        EXPECT_TRUE(parse(xml).ends_with("ERROR")) << xml;

    // Nothing outside the file is loaded and no entity is expanded.
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
         })
        EXPECT_EQ(parse(xml), "ERROR") << xml;
    // An undeclared entity is a plain parse error.
    EXPECT_EQ(parse("<a>&x;</a>"), "<a|ERROR");

    // Deep nesting, oversized and attribute-flooded documents are refused quickly.
    ok = false;
    parse(nested(200), &ok);
    EXPECT_TRUE(ok);
    EXPECT_TRUE(parse(nested(100000)).ends_with("ERROR")); // the parser's depth limit
    EXPECT_EQ(parse("<a>" + std::string(ZOLSaxParser::kMaxDocumentBytes, 'x') + "</a>"), "ERROR");
    // Hundreds of thousands of attributes on one tag, or of namespace declarations, would keep
    // the parser busy for minutes; they are refused before parsing. A tag may carry a few
    // hundred attributes, and "=" in text does not count.
    auto attributes = [](int count, const std::string& form) {
        std::string tag = "<a";
        for (int i = 0; i < count; ++i)
            tag += " " + form + std::to_string(i) + "=\"\"";
        return tag + "/>";
    };
    EXPECT_EQ(parse(attributes(200000, "a")), "ERROR");
    EXPECT_EQ(parse(attributes(250, "xmlns:p")), "ERROR");
    const std::string most = attributes(ZOLSaxParser::kMaxAttributesPerTag, "a");
    EXPECT_TRUE(ZOLSaxParser::withinMarkupLimits(most));
    EXPECT_FALSE(ZOLSaxParser::withinMarkupLimits(most + "<b c='' " + most.substr(2)));
    EXPECT_TRUE(ZOLSaxParser::withinMarkupLimits("<a>" + std::string(10000, '=') + "</a>"));

    // A handler can stop the parse.
    EventLog log;
    log.abortAfterStarts = 1;
    EXPECT_FALSE(ZOLSaxParser::parse("<a><b><c/></b></a>", log));
    EXPECT_EQ(log.events, "<a|<b|ERROR");

    // A handler that throws does not unwind through the parser; the exception arrives after it.
    class Thrower : public EventLog {
        void startElement(std::string_view, const Attributes&) override {
            throw std::runtime_error("full");
        }
    } thrower;
    EXPECT_THROW(ZOLSaxParser::parse("<a><b/></a>", thrower), std::runtime_error);
    EXPECT_TRUE(thrower.events.empty());
}
