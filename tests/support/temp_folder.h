// A fresh folder under the system's temporary folder, removed with its contents at the end.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace vorlexa::test {

class TempFolder {
public:
    TempFolder() {
        std::random_device rd;
        path_ = std::filesystem::temp_directory_path() /
                ("vorlexa-test-" + std::to_string(rd()) + std::to_string(rd()));
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

    void write(const std::string& name, const std::string& bytes) const {
        const auto p = path_ / name;
        std::filesystem::create_directories(p.parent_path());
        std::ofstream out(p, std::ios::binary | std::ios::trunc);
        out << bytes;
    }
    std::string read(const std::string& name) const {
        std::ifstream in(path_ / name, std::ios::binary);
        return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    }

private:
    std::filesystem::path path_;
};

}  // namespace vorlexa::test
