// Runs vorlexa-cli as a user would and collects its output and exit code.
#pragma once

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

namespace vorlexa::test {

struct CliResult {
    int exitCode = -1;
    std::string out;  // standard output; standard error goes to errFile
    std::string err;
};

inline std::string shellQuote(const std::string& s) {
    std::string q = "'";
    for (char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return q + "'";
}

// `args` is already quoted where needed; `input` is fed on standard input. `launcher`, when
// given, runs the tool (for example `setsid -w`, which takes the controlling terminal away).
inline CliResult runCli(const std::string& args, const std::string& input = "",
                        const std::filesystem::path& scratch = std::filesystem::temp_directory_path(),
                        const std::string& launcher = "") {
    const auto in = scratch / "cli-stdin";
    const auto err = scratch / "cli-stderr";
    {
        FILE* f = std::fopen(in.c_str(), "wb");
        std::fwrite(input.data(), 1, input.size(), f);
        std::fclose(f);
    }
    const std::string cmd = launcher + (launcher.empty() ? "" : " ") + std::string(VORLEXA_CLI_PATH) + " " + args + " <" + shellQuote(in) +
                            " 2>" + shellQuote(err);
    CliResult r;
    FILE* pipe = popen(cmd.c_str(), "r");
    std::array<char, 4096> buf{};
    std::size_t n = 0;
    while ((n = std::fread(buf.data(), 1, buf.size(), pipe)) > 0) r.out.append(buf.data(), n);
    const int status = pclose(pipe);
    r.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (FILE* f = std::fopen(err.c_str(), "rb")) {
        while ((n = std::fread(buf.data(), 1, buf.size(), f)) > 0) r.err.append(buf.data(), n);
        std::fclose(f);
    }
    return r;
}

}  // namespace vorlexa::test
