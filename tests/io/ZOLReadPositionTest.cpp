// Where the readers say a file they cannot read went wrong: the line and column the parser
// stopped at, for zolest to name after its alert.
#include "io/ZOLPriceFileReader.h"
#include "io/ZOLTemplateReader.h"
#include "io/ZOLWorkbookReader.h"
#include "model/ZOLPricing.h"
#include "model/ZOLWorkbook.h"
#include "support/AlertRecorder.h"

#include <gtest/gtest.h>

TEST(ZOLReadPosition, AFileThatCannotBeReadSaysWhereItWentWrong) {
    ScopedAlertRecorder alerts;
    const ZOLReadLimits oneWorksheet{.worksheets = 1};
    std::string crowdedTag = "<Workbook";
    for (int i = 0; i < 300; ++i)
        crowdedTag += " a" + std::to_string(i) + "=\"1\"";
    struct Case {
        std::string bytes;
        int32_t line, column;
        ZOLReadStatus status = ZOLReadStatus::ParseError;
    };
    for (const Case& c : std::vector<Case>{
             // an unescaped ampersand, typed into an older file by hand: where it stands, not
             // where libxml2 gave up further on
             {"<?xml version=\"1.0\"?>\n<Workbook>\n\t<ProjectName>A & B</ProjectName>", 3, 18},
             // refused on purpose: a document type declaration, a worksheet beyond the limit
             {"<?xml version=\"1.0\"?>\n<!DOCTYPE Workbook [<!ENTITY a \"b\">]>\n<Workbook/>", 2,
              20},
             {"<Workbook>\n<Worksheets>\n<Worksheet Name=\"A\"></Worksheet>\n"
              "<Worksheet Name=\"B\"></Worksheet>\n</Worksheets></Workbook>",
              4, 20},
             // turned away before parsing: no place in the file
             {"", 0, 0, ZOLReadStatus::Refused},
             {crowdedTag + "/>", 0, 0},
         }) {
        const auto result = ZOLWorkbookReader::readWorkbookData(c.bytes, oneWorksheet);
        EXPECT_EQ(result.status, c.status) << c.bytes;
        EXPECT_EQ(result.errorPosition.line, c.line) << c.bytes;
        EXPECT_EQ(result.errorPosition.column, c.column) << c.bytes;
    }

    // Templates say it when asked (a file cut short, and a price file's place: see zolest's file
    // commands).
    ZOLPricing pricing;
    ZOLWorkbook workbook;
    ZOLReadPosition lines;
    EXPECT_EQ(ZOLTemplateReader::readTemplateData("<CustomItems>\n\n<Items></CustomItems>",
                                                  workbook, {}, &lines),
              ZOLReadStatus::ParseError);
    EXPECT_EQ((std::pair{lines.line, lines.column}), (std::pair{3, 22}));
    // Without a place to put it the readers work as ever.
    EXPECT_EQ(ZOLPriceFileReader::readPriceData("<Pricing>", pricing), ZOLReadStatus::ParseError);
}
