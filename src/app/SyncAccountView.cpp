// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SyncAccountView.h"

#include "widgets/Icon.h"
#include "widgets/Metrics.h"
#include "widgets/Picker.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"
#include "widgets/TypeScale.h"

#include <QBoxLayout>
#include <QPainter>

namespace dropshade {
namespace {

constexpr int ruleWidth = 2;
constexpr int nameWidth = 120;
constexpr int kindWidth = 208;

} // namespace

SyncAccountView::SyncAccountView(const Look& look, SyncAccountModel& model, FilePanels& panels,
                                 QWidget* parent)
    : QWidget(parent), m_look(look), m_model(model), m_panels(panels),
      m_lines(new QVBoxLayout(this)) {
    m_lines->setContentsMargins(metrics::space16, metrics::space12 + metrics::space4, 0,
                                metrics::space8);
    m_lines->setSpacing(metrics::space8);
    addKind();
    addFolder();
    addServer();
    addTest();
    connect(&model, &SyncAccountModel::accountDidChange, this, &SyncAccountView::showAccount);
    connect(&model, &SyncAccountModel::resultDidChange, this, &SyncAccountView::showResult);
    connect(&look, &Look::didChange, this, &SyncAccountView::showResult);
    showAccount();
    showResult();
}

QWidget* SyncAccountView::addLine(const QString& name, const QList<QWidget*>& controls) {
    auto* line = new QWidget(this);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::space8);
    auto* label = new Label(m_look, TextStyle::Body, Label::Tone::Secondary, name, line);
    label->setMinimumWidth(nameWidth - metrics::space8);
    row->addWidget(label);
    for (QWidget* control : controls)
        row->addWidget(control, qobject_cast<TextField*>(control) ? 1 : 0);
    m_lines->addWidget(line);
    return line;
}

TextField* SyncAccountView::addField(const QString& name) {
    auto* field = new TextField(m_look, TextField::Content::Value, this);
    field->setAccessibleName(name);
    return field;
}

void SyncAccountView::addKind() {
    //: Sync settings: the choice of where the data is kept
    const QString name = tr("Keep data in");
    m_kind = new Picker(m_look, name, this);
    //: Sync settings: where the data is kept
    m_kind->addRow(tr("A folder"), static_cast<int>(CloudAccount::Kind::Folder));
    //: Sync settings: where the data is kept
    m_kind->addRow(tr("An etcd server"), static_cast<int>(CloudAccount::Kind::Etcd));
    m_kind->setMinimumWidth(kindWidth);
    QWidget* line = addLine(name, {m_kind});
    static_cast<QHBoxLayout*>(line->layout())->addStretch(1);
    connect(m_kind, &Picker::picked, this, [this] {
        m_model.setKind(static_cast<CloudAccount::Kind>(m_kind->currentValue().toInt()));
    });
}

void SyncAccountView::addFolder() {
    //: Sync settings: the path of a folder
    const QString name = tr("Folder");
    m_folder = addField(name);
    //: Sync settings: what an empty path of a folder stands for
    m_folder->setPlaceholderText(tr("On this computer only"));
    connect(m_folder, &QLineEdit::editingFinished, this,
            [this] { m_model.setFolder(m_folder->text()); });
    //: Sync settings: button that opens a panel
    auto* choose = new TextButton(m_look, TextButton::Kind::Plain, tr("Choose…"), this);
    //: Sync settings: a button's name for screen readers
    choose->setAccessibleName(tr("Choose Folder"));
    connect(choose, &QAbstractButton::clicked, this, [this] {
        //: Title of the panel that asks for a folder
        m_panels.openFolder(tr("Choose a Folder for Sync"),
                            [this](const std::optional<QString>& path) {
                                if (path)
                                    m_model.setFolder(*path);
                            });
    });
    m_folderLines.append(addLine(name, {m_folder, choose}));
}

void SyncAccountView::addServer() {
    const auto add = [this](const QString& name, TextField*& field,
                            void (SyncAccountModel::*set)(const QString&)) {
        field = addField(name);
        connect(field, &QLineEdit::editingFinished, this,
                [&model = m_model, &field, set] { (model.*set)(field->text()); });
    };
    //: Sync settings: the address of a server
    const QString address = tr("Address");
    //: Sync settings: the user of a server
    const QString user = tr("User");
    //: Sync settings: the password of a server
    const QString password = tr("Password");
    //: Sync settings: the path of a certificate that a server is trusted by
    const QString authority = tr("CA certificate");
    add(address, m_address, &SyncAccountModel::setAddress);
    add(user, m_user, &SyncAccountModel::setUser);
    add(password, m_password, &SyncAccountModel::setPassword);
    add(authority, m_authority, &SyncAccountModel::setAuthority);
    m_address->setPlaceholderText(QStringLiteral("https://host:2379"));
    m_password->setEchoMode(QLineEdit::Password);
    //: Sync settings: what an empty path of a certificate stands for
    m_authority->setPlaceholderText(tr("The system’s"));
    auto* choose = new TextButton(m_look, TextButton::Kind::Plain, tr("Choose…"), this);
    //: Sync settings: a button's name for screen readers
    choose->setAccessibleName(tr("Choose CA Certificate"));
    connect(choose, &QAbstractButton::clicked, this, [this] {
        //: Title of the panel that asks for a certificate
        m_panels.open(tr("Choose a CA Certificate"),
                      //: Kind of file in a panel
                      {tr("Certificates"), {QStringLiteral("pem"), QStringLiteral("crt")}},
                      [this](const std::optional<QString>& path) {
                          if (path)
                              m_model.setAuthority(*path);
                      });
    });
    m_serverLines.append(addLine(address, {m_address}));
    m_serverLines.append(addLine(user, {m_user}));
    m_serverLines.append(addLine(password, {m_password}));
    m_serverLines.append(addLine(authority, {m_authority, choose}));
}

void SyncAccountView::addTest() {
    //: Sync settings: button
    auto* test = new TextButton(m_look, TextButton::Kind::Plain, tr("Test connection"), this);
    connect(test, &QAbstractButton::clicked, this, [this] { m_model.testConnection(); });
    auto* both = new QWidget(this);
    m_testLine = new QBoxLayout(QBoxLayout::LeftToRight, both);
    m_testLine->setContentsMargins(0, 0, 0, 0);
    m_testLine->setSpacing(metrics::space8);
    m_testLine->addWidget(test, 0, Qt::AlignLeft);
    m_testLine->addWidget(makeOutcome(), 1, Qt::AlignVCenter);
    QWidget* line = addLine(QString(), {both});
    static_cast<QHBoxLayout*>(line->layout())->setStretchFactor(both, 1);
    m_serverLines.append(line);
}

QWidget* SyncAccountView::makeOutcome() {
    m_outcome = new QWidget(this);
    m_sign = new QLabel(m_outcome);
    // In the middle of the first line of words.
    m_sign->setContentsMargins(0, (lineHeight(TextStyle::Body) - metrics::icon) / 2, 0, 0);
    m_result = new Label(m_look, TextStyle::Body, Label::Tone::Primary, QString(), m_outcome);
    m_result->setWordWrap(true);
    auto* row = new QHBoxLayout(m_outcome);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::space8);
    row->addWidget(m_sign, 0, Qt::AlignTop);
    row->addWidget(m_result, 1);
    return m_outcome;
}

void SyncAccountView::showAccount() {
    const CloudAccount& account = m_model.account();
    m_kind->setCurrentValue(static_cast<int>(account.kind));
    const auto show = [](TextField* field, const QString& text) {
        if (field->text() != text)
            field->setText(text);
    };
    show(m_folder, SyncAccountModel::shownPath(account.folder));
    show(m_address, account.address);
    show(m_user, account.user);
    show(m_authority, SyncAccountModel::shownPath(account.authority));
    const bool isFolder = account.kind == CloudAccount::Kind::Folder;
    for (QWidget* line : std::as_const(m_folderLines))
        line->setVisible(isFolder);
    for (QWidget* line : std::as_const(m_serverLines))
        line->setVisible(!isFolder);
}

void SyncAccountView::showResult() {
    using Kind = SyncAccountModel::Result::Kind;
    const Theme& theme = m_look.theme();
    const auto& [kind, words] = m_model.result();
    const auto sign = [this](Icon icon, const QColor& ink) {
        m_sign->setPixmap(iconPixmap(icon, ink, metrics::icon, devicePixelRatioF()));
    };
    if (kind == Kind::Working)
        sign(Icon::Working, theme.textSecondary);
    else if (kind == Kind::Well)
        sign(Icon::CircleCheck, theme.statePass);
    else if (kind == Kind::Failed)
        sign(Icon::ExclamationCircle, theme.dangerBase);
    m_outcome->setVisible(kind != Kind::None);
    // What went wrong takes a sentence, more than there is room for beside the button.
    m_testLine->setDirection(kind == Kind::Failed ? QBoxLayout::TopToBottom
                                                  : QBoxLayout::LeftToRight);
    m_result->setTone(kind == Kind::Failed    ? Label::Tone::Danger
                      : kind == Kind::Working ? Label::Tone::Secondary
                                              : Label::Tone::Primary);
    m_result->setWords(words);
}

void SyncAccountView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(
        QRect(0, metrics::space12, ruleWidth, height() - metrics::space12 - metrics::space4),
        m_look.theme().lineHairline);
}

} // namespace dropshade
