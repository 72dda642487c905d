// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ApplicationInstance.h"

namespace dropshade {

/// One process for each session bus: the owner of the program's bus name, which answers to the
/// `org.freedesktop.Application` interface of the Desktop Entry standard.
class DBusApplicationInstance : public ApplicationInstance {
    Q_OBJECT

public:
    DBusApplicationInstance();

    [[nodiscard]] Role claim() override;
    [[nodiscard]] QString commandFor(ApplicationAction action) const override;
};

} // namespace dropshade
