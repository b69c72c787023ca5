#include "ui/desktools/netsendwindow.h"

#include "desktools/loginname.h"
#include "desktools/netsend.h"
#include "desktools/netsendsettings.h"
#include "ui/desktools/emptyondoubleclick.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/formwidgets.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QString text(const char16_t* caption) {
    return QString::fromUtf16(caption);
}

} // namespace

NetSendWindow::NetSendWindow(CommandRunner run, QWidget* parent)
    : QWidget(parent, Qt::Window), m_run(std::move(run)), m_login(loginName()) {
    setObjectName(u"Rufpost"_s);
    setWindowTitle(u"Rufpost"_s);
    buildWidgets();
    const NetSendSettings stored = loadNetSendSettings();
    m_recipient->setText(stored.recipient);
    m_message->setText(stored.message);
    setRecipientsText(stored.recipients);
}

void NetSendWindow::buildWidgets() {
    m_recipient = new QLineEdit(this);
    m_recipient->setObjectName(u"user"_s);
    m_message = new QLineEdit(this);
    m_message->setObjectName(u"Text1"_s);
    emptyOnDoubleClick(m_message);
    m_recipients = new QListWidget(this);
    m_recipients->setObjectName(u"List1"_s);
    connect(m_recipients, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { m_recipient->setText(item->text()); });
    m_sign = new QCheckBox(m_login, this);
    m_sign->setObjectName(u"Check1"_s);
    m_sign->setToolTip(text(kSignHint));

    auto* sendButton = namedButton(u"Command1"_s, text(kSendCaption), this);
    connect(sendButton, &QPushButton::clicked, this, &NetSendWindow::send);
    auto* rememberButton = namedButton(u"cmd_merken"_s, text(kRememberCaption), this);
    connect(rememberButton, &QPushButton::clicked, this, &NetSendWindow::remember);
    auto* deleteButton = namedButton(u"delete"_s, text(kDeleteCaption), this);
    connect(deleteButton, &QPushButton::clicked, this, &NetSendWindow::deleteSelected);
    auto* clearButton = namedButton(u"clear"_s, text(kClearCaption), this);
    connect(clearButton, &QPushButton::clicked, this, &NetSendWindow::clearAll);

    auto* form = new QGridLayout;
    auto* recipientCaption = new QLabel(text(kRecipientCaption), this);
    recipientCaption->setBuddy(m_recipient);
    auto* messageCaption = new QLabel(text(kMessageCaption), this);
    messageCaption->setBuddy(m_message);
    form->addWidget(recipientCaption, 0, 0);
    form->addWidget(m_recipient, 0, 1);
    form->addWidget(rememberButton, 0, 2);
    form->addWidget(messageCaption, 1, 0);
    form->addWidget(m_message, 1, 1, 1, 2);
    form->addWidget(m_sign, 2, 1);
    form->addWidget(sendButton, 2, 2);
    form->setColumnStretch(1, 1);

    auto* listColumn = new QVBoxLayout;
    listColumn->addWidget(new QLabel(text(kRecipientsCaption), this));
    listColumn->addWidget(m_recipients, 1);
    auto* listButtons = new QHBoxLayout;
    listButtons->addWidget(deleteButton);
    listButtons->addWidget(clearButton);
    listColumn->addLayout(listButtons);

    auto* cannedColumn = new QVBoxLayout;
    cannedColumn->addWidget(new QLabel(text(kCannedCaption), this));
    for (const CannedMessage& canned : cannedMessages()) {
        auto* button = namedButton(canned.button, canned.caption, this);
        button->setToolTip(canned.text);
        connect(button, &QPushButton::clicked, this, [this, message = canned.text] { m_message->setText(message); });
        cannedColumn->addWidget(button);
    }
    cannedColumn->addStretch(1);

    auto* lists = new QHBoxLayout;
    lists->addLayout(listColumn, 3);
    lists->addLayout(cannedColumn, 2);

    m_status = new QLabel(this);
    m_status->setObjectName(u"lblstatus"_s);
    m_status->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(lists, 1);
    layout->addWidget(m_status);
    resize(520, 380);
}

void NetSendWindow::send() {
    if (m_recipient->text().trimmed().isEmpty()) {
        m_status->setText(noRecipientText());
        return;
    }
    const NetSendCommand command =
        netSendCommand({m_recipient->text(), m_message->text(), m_sign->isChecked(), m_login});
    const SendStart start = m_run ? m_run(command) : startNetSend(command);
    switch (start) {
    case SendStart::Started:
        // What "net send" itself answers shows in the system's window, not here.
        m_status->clear();
        break;
    case SendStart::NoProgram:
        m_status->setText(noNetCommandText());
        Dialogs::information(this, noNetCommandText());
        break;
    case SendStart::Failed:
        m_status->setText(shellNotStartedText());
        break;
    }
}

void NetSendWindow::remember() {
    setRecipientsText(rememberRecipient(recipientsText(), m_recipient->text()));
}

void NetSendWindow::deleteSelected() {
    const int row = m_recipients->currentRow();
    if (row < 0 || !m_recipients->currentItem()->isSelected())
        return;
    setRecipientsText(withoutRecipient(recipients(), row));
}

void NetSendWindow::clearAll() {
    if (Dialogs::question(this, clearRecipientsQuestion()) == Dialogs::Answer::Yes)
        setRecipientsText(QString());
}

QString NetSendWindow::recipientsText() const {
    return m_recipientsText;
}

QStringList NetSendWindow::recipients() const {
    QStringList items;
    for (int i = 0; i < m_recipients->count(); ++i)
        items.append(m_recipients->item(i)->text());
    return items;
}

void NetSendWindow::setRecipientsText(const QString& text) {
    m_recipientsText = text;
    m_recipients->clear();
    m_recipients->addItems(recipientsOf(text));
}

void NetSendWindow::closeEvent(QCloseEvent* event) {
    storeNetSendSettings({m_recipient->text(), m_message->text(), recipientsText()});
    QWidget::closeEvent(event);
}

void NetSendWindow::mouseDoubleClickEvent(QMouseEvent* event) {
    m_message->setText(windowDoubleClickMessage());
    QWidget::mouseDoubleClickEvent(event);
}

} // namespace quenfor
