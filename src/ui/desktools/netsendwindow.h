#pragma once

#include "desktools/netsend.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace quenfor {

// Rufpost: sends a one-line message with the system's "net send", remembers recipients and
// offers prepared messages.
class NetSendWindow : public QWidget {
    Q_OBJECT

public:
    // run starts the command; empty: startNetSend, the system itself.
    using CommandRunner = std::function<SendStart(const NetSendCommand&)>;
    explicit NetSendWindow(CommandRunner run = {}, QWidget* parent = nullptr);

    void send();           // Command1
    void remember();       // cmd_merken
    void deleteSelected(); // delete
    void clearAll();       // clear: asks first

    QString recipientsText() const; // Text2
    QStringList recipients() const; // List1

protected:
    void closeEvent(QCloseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void buildWidgets();
    void setRecipientsText(const QString& text);

    CommandRunner m_run;
    QString m_login;
    // Text2: the remembered recipients, a line each, ended by CR LF. Kept as text rather than in a
    // hidden text box, which would turn the CR LF into bare line feeds.
    QString m_recipientsText;
    QLineEdit* m_recipient = nullptr;    // user
    QLineEdit* m_message = nullptr;      // Text1
    QListWidget* m_recipients = nullptr; // List1
    QCheckBox* m_sign = nullptr;         // Check1
    QLabel* m_status = nullptr;
};

} // namespace quenfor
