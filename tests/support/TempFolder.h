#pragma once
// A fresh folder under the system's temporary folder, removed with everything in it at the end
// of the scope.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

class TempFolder {
public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zol-test-XXXXXX").string();
        path_ = mkdtemp(pattern.data());
    }
    ~TempFolder() {
        std::error_code ec;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ec);
        std::filesystem::remove_all(path_, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::string operator/(const std::string& name) const {
        return (std::filesystem::path(path_) / name).string();
    }
    // The names in the folder, sorted.
    std::vector<std::string> names() const {
        std::vector<std::string> list;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            list.push_back(entry.path().filename().string());
        std::sort(list.begin(), list.end());
        return list;
    }

    static std::string contents(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static void write(const std::string& path, const std::string& text) {
        std::ofstream(path, std::ios::binary) << text;
    }

private:
    std::string path_;
};
