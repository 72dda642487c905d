// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SyncAccountModel.h"
#include "platform/FilePanels.h"
#include "widgets/Label.h"

class QBoxLayout;
class QVBoxLayout;

namespace dropshade {

class Picker;
class TextButton;
class TextField;

/// The fields of where sync keeps its data, behind a rule that ties them to their row.
class SyncAccountView : public QWidget {
    Q_OBJECT

public:
    /// Both must outlive the view.
    SyncAccountView(const Look& look, SyncAccountModel& model, FilePanels& panels,
                    QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* addLine(const QString& name, const QList<QWidget*>& controls);
    TextField* addField(const QString& name);
    void addKind();
    void addFolder();
    void addServer();
    void addTest();
    QWidget* makeOutcome();
    void showAccount();
    void showResult();

    const Look& m_look;
    SyncAccountModel& m_model;
    FilePanels& m_panels;
    QVBoxLayout* m_lines;
    Picker* m_kind = nullptr;
    TextField* m_folder = nullptr;
    TextField* m_address = nullptr;
    TextField* m_user = nullptr;
    TextField* m_password = nullptr;
    TextField* m_authority = nullptr;
    QBoxLayout* m_testLine = nullptr;
    QWidget* m_outcome = nullptr;
    QLabel* m_sign = nullptr;
    Label* m_result = nullptr;
    QList<QWidget*> m_folderLines;
    QList<QWidget*> m_serverLines;
};

} // namespace dropshade
