// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cloud/CloudSignInDialog.h"

#include "base/Localized.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/ClicksOnce.h"
#include "ui/widgets/ContentScrollArea.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/PlainText.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualWidth = 440;
constexpr int usualLetters = 54; ///< where letters are larger
constexpr int titleBar = 48;     ///< with the edges that a window manager draws
constexpr int folderTab = 1;
constexpr int linesBeside = 10; ///< of text, as high as what stands above and below the form

/// What is left for the form on a low screen, where it scrolls.
int tallestForm(const QScreen &screen)
{
    const int line = QFontMetrics(Theme::font(Theme::Type::Body)).lineSpacing();
    const int rest = screen.availableSize().height() - titleBar - 2 * Theme::windowMargin -
                     3 * Theme::spacing - linesBeside * line;
    return std::max(rest, 2 * Theme::tallRowHeight);
}

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

QLabel *labelOf(QLineEdit *entry)
{
    auto *label = plainLabel(entry->accessibleName());
    label->setProperty("look", u"caption"_s);
    label->setBuddy(entry);
    return label;
}

QVBoxLayout *columnIn(QWidget *widget)
{
    auto *column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Theme::unit / 2);
    return column;
}

QLabel *addHint(QVBoxLayout &column, const QString &text)
{
    auto *hint = plainLabel(text);
    hint->setProperty("look", u"caption"_s);
    hint->setFont(Theme::font(Theme::Type::Caption));
    hint->setWordWrap(true);
    column.addWidget(hint);
    return hint;
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

/// Whole, and to be taken back: what stands in a field is what is said, however long it is.
void replaceText(QLineEdit &field, const QString &text)
{
    field.selectAll();
    field.insert(text);
}

} // namespace

CloudSignInDialog::CloudSignInDialog(CloudSignInModel &model, const Theme &theme, QWidget *parent)
    : QDialog(parent)
    , m_model(model)
    , m_tabs(new QTabBar)
    , m_line(new InlineLine(theme))
    , m_signIn(new BusyButton(theme, Theme::Ink::OnAccent, localized("Sign In")))
{
    setObjectName(u"cloudSignIn"_s);
    setWindowTitle(localized("Sync Account"));
    setWindowModality(Qt::WindowModal);
    m_tabs->setProperty("look", u"segments"_s);
    m_tabs->setAccessibleName(localized("Kind of account"));
    m_tabs->setToolTip(plainToolTip(localized("Where the files of the account are")));
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_tabs->addTab(localized("Nextcloud or WebDAV"));
    m_tabs->addTab(localized("Folder"));
    m_tabs->setCurrentIndex(m_model.state().kind == CloudAccount::Kind::Folder ? folderTab : 0);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(
        Theme::windowMargin, Theme::windowMargin, Theme::windowMargin, Theme::windowMargin);
    column->setSpacing(Theme::spacing);
    column->addWidget(m_tabs);
    column->addWidget(new ContentScrollArea(makeForm(), tallestForm(*screen())), 1);
    column->addWidget(m_line);
    addButtons(*column);

    connect(m_tabs, &QTabBar::currentChanged, this, [this](int tab) {
        m_model.choose(tab == folderTab ? CloudAccount::Kind::Folder : CloudAccount::Kind::WebDav);
        refresh();
    });
    connect(&m_model, &CloudSignInModel::changed, this, &CloudSignInDialog::refresh);
    connect(&m_model, &CloudSignInModel::fieldWanted, this, &CloudSignInDialog::give);
    const QFontMetrics letters(Theme::font(Theme::Type::Body));
    const int wanted = std::max(usualWidth, usualLetters * letters.averageCharWidth());
    setMinimumWidth(std::min(wanted, screen()->availableSize().width()));
    refresh();
    give(m_model.state().kind == CloudAccount::Kind::Folder ? Field::Folder
         : m_model.text(Field::Address).isEmpty()           ? Field::Address
                                                            : Field::Password);
}

QWidget *CloudSignInDialog::makeForm()
{
    auto *form = new QWidget;
    auto *column = new QVBoxLayout(form);
    column->setContentsMargins(RevealingScrollArea::ringRoom, RevealingScrollArea::ringRoom,
        RevealingScrollArea::ringRoom, RevealingScrollArea::ringRoom);
    column->setSpacing(Theme::spacing);
    m_webDav = makeWebDav();
    m_folder = makeFolder();
    auto *passphrase = new QWidget;
    auto *within = columnIn(passphrase);
    const QString what = localized("Encrypts what is stored. The same on all your computers; "
                                   "without it nothing can be read.");
    addField(*within, Field::Passphrase, localized("Passphrase"), what);
    addHint(*within, what);
    m_repetition = makeRepetition();
    m_question = makeQuestion();
    for (QWidget *part : {m_webDav, m_folder, passphrase, m_repetition}) {
        column->addWidget(part);
    }
    addHint(*column, localized("What the account holds is replaced by this computer's settings."));
    column->addWidget(m_question);
    column->addStretch(1);
    return form;
}

QWidget *CloudSignInDialog::makeWebDav()
{
    auto *part = new QWidget;
    auto *column = columnIn(part);
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
    return part;
}

QWidget *CloudSignInDialog::makeFolder()
{
    auto *part = new QWidget;
    auto *column = columnIn(part);
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
    return part;
}

QWidget *CloudSignInDialog::makeRepetition()
{
    auto *part = new QWidget;
    addField(*columnIn(part), Field::RepeatedPassphrase, localized("Repeat passphrase"),
        localized("The account is new: nobody can tell you later what you typed"));
    return part;
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

void CloudSignInDialog::addButtons(QVBoxLayout &column)
{
    auto *cancel = new QPushButton(localized("Cancel"));
    cancel->setAccessibleName(cancel->text());
    cancel->setToolTip(plainToolTip(localized("Gives up what is under way, or closes")));
    m_signIn->setProperty("look", u"primary"_s);
    m_signIn->setBusyText(localized("Signing In…"));
    m_signIn->setAccessibleName(localized("Sign In"));
    m_signIn->setToolTip(plainToolTip(localized("Tries the account, and switches sync on")));
    m_signIn->setDefault(true);
    m_signIn->installEventFilter(new ClicksOnce(m_signIn));
    cancel->installEventFilter(new ClicksOnce(cancel));
    connect(cancel, &QPushButton::clicked, this, &CloudSignInDialog::reject);
    connect(m_signIn, &QPushButton::clicked, &m_model, &CloudSignInModel::signIn);
    auto *row = new QHBoxLayout;
    row->setSpacing(Theme::unit);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(m_signIn);
    column.addLayout(row);
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
    auto *entry = new QLineEdit;
    entry->setObjectName(nameOf(field));
    entry->setProperty("look", u"field"_s);
    entry->setAccessibleName(caption);
    entry->setAccessibleDescription(tip);
    entry->setToolTip(plainToolTip(tip));
    if (isSecret(field)) {
        entry->setEchoMode(QLineEdit::Password);
    }
    // One that is hidden at first has its height all the same.
    entry->ensurePolished();
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
    m_line->say(state.line.text, kindOf(state.line.kind));
    m_signIn->setBusy(state.isBusy);
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

void CloudSignInDialog::fit()
{
    const int tallest = screen()->availableSize().height() - titleBar;
    resize(width(), std::min(layout()->totalHeightForWidth(width()), tallest));
}

void CloudSignInDialog::reject()
{
    m_model.cancel();
}

bool CloudSignInDialog::event(QEvent *event)
{
    const bool isTaken = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show) {
        fit();
    }
    return isTaken;
}

void CloudSignInDialog::closeEvent(QCloseEvent *event)
{
    m_model.close();
    event->accept();
}

void CloudSignInDialog::keyPressEvent(QKeyEvent *event)
{
    // Held, it would give up the attempt first and the dialog then.
    if (event->key() != Qt::Key_Escape || !event->isAutoRepeat()) {
        QDialog::keyPressEvent(event);
    }
}

} // namespace quillon
