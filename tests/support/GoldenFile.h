#pragma once
// The byte-exact expected outputs kept under tests/data.
#include <fstream>
#include <sstream>
#include <string>

inline std::string goldenFile(const std::string& relativePath) {
    std::ifstream in(std::string(ZOL_TEST_DATA) + "/" + relativePath, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}
