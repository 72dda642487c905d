// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/HoverAmount.h"

#include <QLineEdit>

namespace dropshade {

class ErrorSign;
class IconButton;

/// One line of text. A field whose text is refused has a red edge and, on request, a sign with the
/// reason in its tooltip.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    enum class Content { Words, Value }; ///< Values are in the fixed-width font.

    TextField(const Look& look, Content content, QWidget* parent = nullptr);

    /// 32 unless it is set.
    void setFieldHeight(int height);

    void setFailed(bool failed);
    [[nodiscard]] bool isFailed() const { return m_isFailed; }

    /// The reason why the text is refused: with it a failed field shows a sign at its right end.
    void setFailure(const QString& reason);

    /// Shows a button that empties the field, named `name`, while there is text. It emits `cleared`
    /// and leaves the rest to whoever listens.
    void setClearButton(const QString& name);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void cleared();
    /// The user has come to the field, and has left it; a menu over it or another window is
    /// neither.
    void focusEntered();
    void focusLeft();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void adopt();
    void arrange();
    void showBeginning();

    const Look& m_look;
    Content m_content;
    HoverAmount m_hover{m_look, *this};
    int m_height;
    bool m_isFailed = false;
    IconButton* m_clearButton = nullptr;
    /// Where the text is refused; its tooltip and its name say why.
    ErrorSign* m_sign = nullptr;
};

} // namespace dropshade
