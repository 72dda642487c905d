// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/NameEdit.h"
#include "widgets/Popover.h"

#include <memory>

namespace dropshade {

/// Asks for the name of a palette or of a scale. Any way out of it takes the name, but for Escape
/// and "Cancel".
class NamePopover : public Popover {
    Q_OBJECT

public:
    NamePopover(const Look& look, QWidget& anchor, std::unique_ptr<NameEdit> edit);
    ~NamePopover() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void cancel();

    std::unique_ptr<NameEdit> m_edit;
};

} // namespace dropshade
