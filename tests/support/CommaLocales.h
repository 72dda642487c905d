// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <locale>
#include <string>

namespace dropshade {

/// The C library speaks German, with a comma for the decimal point, as long as this lives: by the
/// locale that is installed, or by one that is compiled where the library's sources are at hand.
class GermanCLocale {
public:
    GermanCLocale() : m_isSet((set() || compile()) && writesACommaNow()) {}
    ~GermanCLocale() {
        std::setlocale(LC_ALL, "C");
        unsetenv("LOCPATH");
        std::filesystem::remove_all(m_folder);
    }
    GermanCLocale(const GermanCLocale&) = delete;
    GermanCLocale& operator=(const GermanCLocale&) = delete;

    /// Not so where there is no such locale and none can be compiled.
    [[nodiscard]] bool isSet() const { return m_isSet; }

private:
    static bool set() { return std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr; }

    bool compile() const {
        std::filesystem::create_directories(m_folder);
        const std::string command = "localedef --no-archive -i de_DE -f UTF-8 '" + m_folder +
                                    "/de_DE.UTF-8' >/dev/null 2>&1";
        setenv("LOCPATH", m_folder.c_str(), 1);
        return std::system(command.c_str()) == 0 && set();
    }

    static bool writesACommaNow() {
        std::array<char, 8> text;
        std::snprintf(text.data(), text.size(), "%.1f", 0.5);
        return text[1] == ',';
    }

    /// Of this process, since tests run beside each other.
    std::string m_folder = testing::TempDir() + "dropshade-locale-" + std::to_string(getpid());
    bool m_isSet;
};

/// C++ streams write commas, and group digits, as long as this lives.
class CommaCppLocale {
public:
    CommaCppLocale()
        : m_before(std::locale::global(std::locale(std::locale::classic(), new Punctuation))) {}
    ~CommaCppLocale() { std::locale::global(m_before); }
    CommaCppLocale(const CommaCppLocale&) = delete;
    CommaCppLocale& operator=(const CommaCppLocale&) = delete;

private:
    class Punctuation : public std::numpunct<char> {
    protected:
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\1"; }
    };

    std::locale m_before;
};

} // namespace dropshade
