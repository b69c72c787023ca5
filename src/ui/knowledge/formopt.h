#pragma once

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace quenfor {

class ConfigDocument;
class StatusHints;

// The path options window: the 23 path, file and name options every installation sets for
// itself, each with its text box and a ">>" button that appends the option line to the document.
// Text boxes turn red while their folder or file does not exist; a click on an option's name
// shows its help. The values are read from the settings store when the window opens and written
// back by every insert, by "alle einfügen" and when the window closes. It does not block the
// main window.
class FormOpt : public QWidget {
    Q_OBJECT

public:
    explicit FormOpt(ConfigDocument* document, QWidget* parent = nullptr);

    // The text box contents in the order of pathOptions().
    QStringList values() const;
    // The help text shown at the moment.
    QString helpText() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWidgets();
    QWidget* buildOptionGrid();
    void insertOne(int index);
    void insertAll();
    void browse(int index);
    void showHelp(int index);
    void colourEntry(int index);
    void warnStoreFailed();
    void setStatus(const QString& text);

    QPointer<ConfigDocument> m_document;
    QList<QLineEdit*> m_entries; // in the order of pathOptions()
    QList<QLabel*> m_names;
    QPlainTextEdit* m_help = nullptr;
    QLabel* m_status = nullptr;
    StatusHints* m_hints = nullptr;
};

} // namespace quenfor
