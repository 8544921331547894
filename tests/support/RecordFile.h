#pragma once
// A record's element of the workbook file as the reader fills it: the texts handed over code by
// code, and the codes of the other records, which must change nothing.
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using CodeTexts = std::vector<std::pair<int32_t, const char*>>;

template <class Record> Record readRecord(const CodeTexts& values) {
    Record record;
    for (const auto& [code, text] : values)
        record.setValue(std::optional<std::string>(text), code);
    return record;
}

// Every code outside first..last (and the extremes) with a number, a true, the words of the
// unit and judgement lists and an absent text leaves the element as it was.
template <class Record> void expectOtherCodesIgnored(Record record, int32_t first, int32_t last) {
    const std::string before = record.getXMLString();
    std::vector<int32_t> codes = {INT_MIN, INT_MAX};
    for (int32_t code = -1; code <= 100; ++code)
        if (code < first || code > last)
            codes.push_back(code);
    for (int32_t code : codes)
        for (const char* text : {"77", "true", "Imperial", "Average", "Twelve"}) {
            record.setValue(std::optional<std::string>(text), code);
            record.setValue(std::nullopt, code);
        }
    EXPECT_EQ(record.getXMLString(), before);
}

// The record's element as the reader fills it, then touched by adjust for fields without a code
// of their own (xml/NAME-filled.xml); other records' codes change nothing and clearing gives the
// fresh element back (which the new workbook's file pins). Returns the filled record.
template <class Record>
Record expectRecordFile(const std::string& name, const CodeTexts& values, int32_t first,
                        int32_t last, const std::function<void(Record&)>& adjust = {}) {
    Record record = readRecord<Record>(values);
    if (adjust)
        adjust(record);
    expectGoldenFile("xml/" + name + "-filled.xml", record.getXMLString());
    expectOtherCodesIgnored(record, first, last);
    Record cleared = record;
    cleared.clear();
    EXPECT_EQ(cleared.getXMLString(), Record().getXMLString()) << name;
    return record;
}
