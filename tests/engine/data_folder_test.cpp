#include "engine/data_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/temp_folder.h"

using namespace vorlexa;

namespace {
class ScopedEnv {
public:
    ScopedEnv(const char* name, const char* value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old, had_ = true;
        if (value) setenv(name, value, 1); else unsetenv(name);
    }
    ~ScopedEnv() {
        if (had_) setenv(name_, old_.c_str(), 1); else unsetenv(name_);
    }

private:
    const char* name_;
    std::string old_;
    bool had_ = false;
};
}  // namespace

TEST(DataFolder, CommandLineWinsOverEnvironment) {
    ScopedEnv env(kDataDirVariable, "/tmp/from-env");
    EXPECT_EQ(resolveDataFolder(std::filesystem::path("/tmp/from-cli")), "/tmp/from-cli");
    EXPECT_EQ(resolveDataFolder(std::nullopt), "/tmp/from-env");
}

TEST(DataFolder, XdgDataHomeThenHome) {
    ScopedEnv env(kDataDirVariable, nullptr);
    {
        ScopedEnv xdg("XDG_DATA_HOME", "/tmp/xdg");
        EXPECT_EQ(resolveDataFolder(std::nullopt), "/tmp/xdg/vorlexa");
    }
    ScopedEnv xdg("XDG_DATA_HOME", nullptr);
    ScopedEnv home("HOME", "/home/someone");
    EXPECT_EQ(resolveDataFolder(std::nullopt), "/home/someone/.local/share/vorlexa");
}

TEST(DataFolder, SeedingCopiesShippedDataOnceAndKeepsTheUsersFiles) {
    test::TempFolder shipped;
    shipped.write("dictionarye-a", "shipped-e");
    shipped.write("dictionarya-e", "shipped-a");
    shipped.write("uxxuma", "pairs");
    test::TempFolder home;
    const auto folder = home / "nested/vorlexa";
    std::string error;
    ASSERT_TRUE(seedDataFolder(folder, shipped.path(), error)) << error;
    EXPECT_TRUE(hasDictionaries(folder));
    EXPECT_TRUE(std::filesystem::exists(folder / "uxxuma"));
    home.write("nested/vorlexa/dictionarye-a", "user's own");
    ASSERT_TRUE(seedDataFolder(folder, shipped.path(), error));
    EXPECT_EQ(home.read("nested/vorlexa/dictionarye-a"), "user's own");
}

TEST(DataFolder, SeedingWithoutShippedDataIsAClearError) {
    test::TempFolder home;
    std::string error;
    EXPECT_FALSE(seedDataFolder(home / "x", {}, error));
    EXPECT_NE(error.find("no shipped data"), std::string::npos);
}
