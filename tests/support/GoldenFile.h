#pragma once
// The byte-exact expected outputs kept under tests/data.
#include "support/TextDiff.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

inline std::string goldenFile(const std::string& relativePath) {
    std::ifstream in(std::string(ZOL_TEST_DATA) + "/" + relativePath, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Compares a text with its golden file; run with ZOL_UPDATE_GOLDEN=1 to rewrite the file
// instead (and review the difference before committing it).
inline void expectGoldenFile(const std::string& relativePath, const std::string& text) {
    if (std::getenv("ZOL_UPDATE_GOLDEN")) {
        std::ofstream(std::string(ZOL_TEST_DATA) + "/" + relativePath, std::ios::binary) << text;
        return;
    }
    const std::string golden = goldenFile(relativePath);
    ASSERT_FALSE(golden.empty()) << relativePath;
    EXPECT_EQ(text, golden) << relativePath << ": " << firstDifference(golden, text);
}
