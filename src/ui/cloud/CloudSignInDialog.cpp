// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/CloudSignInDialog.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/ClicksOnce.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int folderTab = 1;

bool isSecret(CloudSignInModel::Field field)
{
    using Field = CloudSignInModel::Field;
    return field == Field::Password || field == Field::Passphrase ||
           field == Field::RepeatedPassphrase;
}

QString nameOf(CloudSignInModel::Field field)
{
    return u"cloudField%1"_s.arg(static_cast<int>(field));
}

InlineLine::Kind kindOf(CloudSignInModel::Line::Kind kind)
{
    using Kind = CloudSignInModel::Line::Kind;
    switch (kind) {
    case Kind::Progress:
        return InlineLine::Kind::Muted;
    case Kind::Notice:
        return InlineLine::Kind::Notice;
    case Kind::Failure:
        return InlineLine::Kind::Danger;
    }
    Q_UNREACHABLE();
}

} // namespace

CloudSignInDialog::CloudSignInDialog(CloudSignInModel &model, const Theme &theme, QWidget *parent)
    : CloudFormDialog(theme, localized("Sign In"), parent)
    , m_model(model)
    , m_tabs(new QTabBar)
{
    setObjectName(u"cloudSignIn"_s);
    setWindowTitle(localized("Sync Account"));
    m_tabs->setProperty("look", u"segments"_s);
    m_tabs->setAccessibleName(localized("Kind of account"));
    m_tabs->setToolTip(plainToolTip(localized("Where the files of the account are")));
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_tabs->addTab(localized("Nextcloud or WebDAV"));
    m_tabs->addTab(localized("Folder"));
    m_tabs->setCurrentIndex(m_model.state().kind == CloudAccount::Kind::Folder ? folderTab : 0);
    confirm().setBusyText(localized("Signing In…"));
    confirm().setToolTip(plainToolTip(localized("Tries the account, and switches sync on")));
    arrange(m_tabs, makeForm());

    connect(&confirm(), &QPushButton::clicked, &m_model, &CloudSignInModel::signIn);
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int tab) {
        m_model.choose(tab == folderTab ? CloudAccount::Kind::Folder : CloudAccount::Kind::WebDav);
        refresh();
    });
    connect(&m_model, &CloudSignInModel::changed, this, &CloudSignInDialog::refresh);
    connect(&m_model, &CloudSignInModel::fieldWanted, this, &CloudSignInDialog::give);
    refresh();
    give(m_model.state().kind == CloudAccount::Kind::Folder ? Field::Folder
         : m_model.text(Field::Address).isEmpty()           ? Field::Address
                                                            : Field::Password);
}

QWidget *CloudSignInDialog::makeForm()
{
    auto *form = new QWidget;
    QVBoxLayout *column = columnOf(form);
    m_webDav = makeWebDav();
    m_folder = makeFolder();
    QVBoxLayout *passphrase = makePart();
    const QString what = localized("Encrypts what is stored. The same on all your computers; "
                                   "without it nothing can be read.");
    addField(*passphrase, Field::Passphrase, localized("Passphrase"), what);
    addHint(*passphrase, what);
    m_repetition = makeRepetition();
    m_question = makeQuestion();
    for (QWidget *part : {m_webDav, m_folder, passphrase->parentWidget(), m_repetition}) {
        column->addWidget(part);
    }
    addHint(*column, localized("What the account holds is replaced by this computer's settings."));
    column->addWidget(m_question);
    column->addStretch(1);
    return form;
}

QWidget *CloudSignInDialog::makeWebDav()
{
    QVBoxLayout *column = makePart();
    QLineEdit *address = addField(*column, Field::Address, localized("Server"),
        localized("Its address, or that of your files there, as a browser shows it"));
    address->setInputMethodHints(
        Qt::ImhUrlCharactersOnly | Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText);
    column->addSpacing(Theme::unit / 2);
    QLineEdit *user = addField(*column, Field::User, localized("User name"),
        localized("The name that you have at this server"));
    user->setInputMethodHints(Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText);
    column->addSpacing(Theme::unit / 2);
    addField(*column, Field::Password, localized("App password"),
        localized("Made in the security settings of your account at the server"));
    addHint(*column, localized("Kept in your keyring."));
    return column->parentWidget();
}

QWidget *CloudSignInDialog::makeFolder()
{
    QVBoxLayout *column = makePart();
    const QString what = localized("One that another program makes equal on your computers.");
    QLineEdit *path = makeField(Field::Folder, localized("Folder"), what);
    m_choose = new QPushButton(localized("Choose…"));
    m_choose->setAccessibleName(localized("Choose Folder"));
    m_choose->setToolTip(plainToolTip(localized("Looks for it in your files")));
    connect(m_choose, &QPushButton::clicked, this, &CloudSignInDialog::chooseFolder);
    column->addWidget(labelOf(path));
    column->addWidget(path);
    addHint(*column, what);
    column->addWidget(m_choose, 0, Qt::AlignTrailing);
    return column->parentWidget();
}

QWidget *CloudSignInDialog::makeRepetition()
{
    QVBoxLayout *column = makePart();
    addField(*column, Field::RepeatedPassphrase, localized("Repeat passphrase"),
        localized("The account is new: nobody can tell you later what you typed"));
    return column->parentWidget();
}

QFrame *CloudSignInDialog::makeQuestion()
{
    auto *box = new QFrame;
    box->setObjectName(u"certificateQuestion"_s);
    box->setProperty("look", u"tint"_s);
    auto *column = new QVBoxLayout(box);
    column->setContentsMargins(Theme::spacing, Theme::unit, Theme::spacing, Theme::unit);
    column->setSpacing(Theme::unit);
    auto *what = plainLabel(
        localized("This is the SHA-256 fingerprint of the server's certificate. Accept it "
                  "only if the server's administrator tells you the same one."));
    what->setWordWrap(true);
    column->addWidget(what);
    m_fingerprint = plainLabel();
    m_fingerprint->setObjectName(u"fingerprint"_s);
    m_fingerprint->setFont(Theme::font(Theme::Type::Address));
    m_fingerprint->setTextInteractionFlags(
        Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // The flags alone would let nobody come back to it without a pointer.
    m_fingerprint->setFocusPolicy(Qt::StrongFocus);
    // Digits, in whatever direction the words run.
    m_fingerprint->setLayoutDirection(Qt::LeftToRight);
    m_fingerprint->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_fingerprint->setToolTip(plainToolTip(what->text()));
    column->addWidget(m_fingerprint, 0, Qt::AlignHCenter);
    auto *copy = new QPushButton(localized("Copy"));
    copy->setAccessibleName(localized("Copy Fingerprint"));
    copy->setToolTip(plainToolTip(localized("To compare it in another window")));
    connect(copy, &QPushButton::clicked, this, &CloudSignInDialog::copyFingerprint);
    m_accept = new QPushButton(localized("Accept Certificate"));
    m_accept->setAccessibleName(m_accept->text());
    m_accept->setToolTip(plainToolTip(
        localized("Signs in, and trusts this certificate for this account from now on")));
    m_accept->installEventFilter(new ClicksOnce(m_accept));
    connect(m_accept, &QPushButton::clicked, &m_model, &CloudSignInModel::acceptCertificate);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::unit);
    buttons->addStretch();
    buttons->addWidget(copy);
    buttons->addWidget(m_accept);
    column->addLayout(buttons);
    return box;
}

QLineEdit *CloudSignInDialog::addField(
    QVBoxLayout &column, Field field, const QString &caption, const QString &tip)
{
    QLineEdit *entry = makeField(field, caption, tip);
    column.addWidget(labelOf(entry));
    column.addWidget(entry);
    return entry;
}

QLineEdit *CloudSignInDialog::makeField(Field field, const QString &caption, const QString &tip)
{
    QLineEdit *entry = makeEntry(caption, tip);
    entry->setObjectName(nameOf(field));
    if (isSecret(field)) {
        entry->setEchoMode(QLineEdit::Password);
    }
    m_fields.emplace(field, entry);
    // Not textEdited(): assistive technology types as well.
    connect(entry, &QLineEdit::textChanged, this, [=, this](const QString &text) {
        m_model.edit(field, text);
        refreshFields();
        // What is too long for the field can be read there.
        if (!isSecret(field)) {
            entry->setToolTip(plainToolTip(entry->text().isEmpty() ? tip : entry->text()));
        }
    });
    return entry;
}

void CloudSignInDialog::chooseFolder()
{
    if (m_model.state().isBusy) {
        return;
    }
    auto *chooser = new QFileDialog(this);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    chooser->setWindowTitle(localized("Choose Folder"));
    chooser->setFileMode(QFileDialog::Directory);
    chooser->setOption(QFileDialog::ShowDirsOnly);
    connect(chooser, &QFileDialog::fileSelected, this, [this](const QString &path) {
        replaceText(*m_fields.at(Field::Folder), path);
        give(Field::Passphrase);
    });
    chooser->open();
}

void CloudSignInDialog::copyFingerprint()
{
    QGuiApplication::clipboard()->setText(plainLine(m_model.state().fingerprint));
}

void CloudSignInDialog::refresh()
{
    const auto &state = m_model.state();
    const bool isFolder = state.kind == CloudAccount::Kind::Folder;
    m_tabs->setCurrentIndex(isFolder ? folderTab : 0);
    m_folder->setVisible(isFolder);
    m_webDav->setVisible(!isFolder);
    m_repetition->setVisible(state.asksToRepeat);
    m_question->setVisible(!state.fingerprint.isEmpty());
    showBroken(*m_fingerprint, plainParagraphs(m_model.fingerprintGroups().join(u'\n')));
    m_fingerprint->setAccessibleName(state.fingerprint);
    for (const auto &[field, entry] : m_fields) {
        entry->setReadOnly(state.isBusy);
    }
    line().say(state.line.text, kindOf(state.line.kind));
    confirm().setBusy(state.isBusy);
    refreshFields();
}

void CloudSignInDialog::refreshFields()
{
    for (const auto &[field, entry] : m_fields) {
        if (const QString &text = m_model.text(field); entry->text() != text) {
            replaceText(*entry, text);
        }
    }
}

void CloudSignInDialog::give(Field field)
{
    if (field == Field::Certificate) {
        m_fingerprint->setFocus(Qt::OtherFocusReason);
    } else if (field != Field::Nothing) {
        QLineEdit *entry = m_fields.at(field);
        entry->setFocus(Qt::OtherFocusReason);
        if (isSecret(field)) {
            entry->selectAll();
        }
    }
}

void CloudSignInDialog::reject()
{
    m_model.cancel();
}

void CloudSignInDialog::closeEvent(QCloseEvent *event)
{
    m_model.close();
    event->accept();
}

} // namespace quillon
