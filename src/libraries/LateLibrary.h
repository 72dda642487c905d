// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLibrary>

namespace dropshade {

/// A library of the system that is loaded when it is needed and then kept. Linked, it would cost
/// every start of the program.
class LateLibrary {
public:
    /// "heif" is libheif; `interfaceVersion` is the number at the end of its file's name, which
    /// changes when its functions do.
    LateLibrary(const QString& name, int interfaceVersion) : m_library(name, interfaceVersion) {}

    /// Looks the function up, and loads the library at the first call.
    template <typename Function>
    LateLibrary& resolve(const char* symbol, Function& function) {
        function = reinterpret_cast<Function>(address(symbol));
        return *this;
    }

    /// Whether every function was there so far.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    [[nodiscard]] QFunctionPointer address(const char* symbol);

    QLibrary m_library;
    bool m_isWhole = true;
};

} // namespace dropshade
