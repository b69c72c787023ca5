#pragma once

#include "document/textencoding.h"

#include <QStringList>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace quenfor {

class LineTranslator;
class SkribbFileBox;
class StatusHints;

// Skribb, the text editor ("quenfor Text-Editor"): one text in TextBox1, opened and saved through
// two file boxes, printed, explained line by line, translated line by line through a web service,
// and at closing handed to the main window's document as new lines. The status line lblstatus
// shows line and column and takes the editor's commands.
class SkribbWindow : public QWidget {
    Q_OBJECT

public:
    // The text starts as `text` (lines separated by CR LF), saved in `encoding` until a file with
    // another one is opened.
    explicit SkribbWindow(const QString& text = {}, const TextEncoding& encoding = {}, QWidget* parent = nullptr);
    ~SkribbWindow() override;

    // The text with its lines separated by CR LF, as it is saved and handed over.
    QString text() const;
    void setText(const QString& text);
    QString fileName() const; // Label1
    QString status() const;   // lblstatus
    QString currentLine() const;
    bool isTranslating() const;

    void openFile(const QString& path);
    void save();                                             // img_save
    void saveAs(const QString& folder, const QString& name); // saveas
    void runCommand(const QString& command);                 // Enter in lblstatus
    void translate(const QString& direction);                // a choice in Combo1
    void cancelTranslation();

signals:
    // The explanation of the current line, for the main window's explanation panel.
    void explanationReady(const QString& text);
    // The text's lines, handed back when the window closes and the user agreed.
    void linesHandedBack(const QStringList& lines);
    // A translation run ended (finished or cancelled).
    void translationFinished();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWidgets();
    QWidget* buildToolRow();
    QFrame* buildColourFrame();
    QPoint boxPlace(const QWidget* box, bool right) const;
    void restoreSettings();
    void storeSettings();
    void setStatus(const QString& text);

    // Files
    void showOpenBox();
    void showSaveAsBox();
    void loadChosen(const QString& folder, const QString& name);
    void rememberFolder(const QString& folder, const QString& drive);
    void print();
    void clearText();
    void copyText();

    // Caret, explanation, colours
    void showCaretPlace();
    void explainCurrentLine();
    void toggleExplain();
    void toggleColourFrame();
    void chooseColour(const QString& word);
    void refresh();

    // Commands and translation
    void openHelpPage();
    void startTerminal();
    void lineTranslated(qsizetype index, const QString& result, bool failed);
    void finishTranslation(bool cancelled);
    void appendToText(const QString& text);
    void setTranslating(bool running);

    TextEncoding m_encoding;
    QString m_folder;
    QString m_drive;
    QString m_colourWord;

    // The run of a translation: what was there before, how far it got.
    QStringList m_sourceLines;
    QString m_sourceText; // the text before the translation, given back when no line came through
    qsizetype m_translated = 0;
    qsizetype m_failedLines = 0;
    qsizetype m_askedLines = 0;
    QString m_backupPath;

    StatusHints* m_hints = nullptr;
    QPlainTextEdit* m_text = nullptr;        // TextBox1
    QLabel* m_fileLabel = nullptr;           // Label1
    QLineEdit* m_status = nullptr;           // lblstatus
    QCheckBox* m_explain = nullptr;          // chkErklaer
    QComboBox* m_direction = nullptr;        // Combo1
    QToolButton* m_settingsButton = nullptr; // cmd_Einstell
    QFrame* m_colourFrame = nullptr;
    QLabel* m_colourLabel = nullptr; // lbl_schwarzweissblau
    QProgressBar* m_progress = nullptr;
    QPushButton* m_cancel = nullptr;
    QWidget* m_progressRow = nullptr;
    QWidget* m_textArea = nullptr;
    SkribbFileBox* m_openBox = nullptr;   // Dateiauswahl
    SkribbFileBox* m_saveAsBox = nullptr; // Dateiauswahl2
    LineTranslator* m_translator = nullptr;
};

} // namespace quenfor
