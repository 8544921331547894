#pragma once
// The byte-exact expected outputs kept under tests/data.
#include "support/TempFolder.h"
#include "support/TextDiff.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

inline std::string goldenFile(const std::string& relativePath) {
    return TempFolder::contents(std::string(ZOL_TEST_DATA) + "/" + relativePath);
}

// Compares a text with its golden file; run with ZOL_UPDATE_GOLDEN=1 to rewrite the file
// instead (and review the difference before committing it).
inline void expectGoldenFile(const std::string& relativePath, const std::string& text) {
    if (std::getenv("ZOL_UPDATE_GOLDEN")) {
        TempFolder::write(std::string(ZOL_TEST_DATA) + "/" + relativePath, text);
        return;
    }
    const std::string golden = goldenFile(relativePath);
    ASSERT_FALSE(golden.empty()) << relativePath;
    EXPECT_EQ(text, golden) << relativePath << ": " << firstDifference(golden, text);
}
