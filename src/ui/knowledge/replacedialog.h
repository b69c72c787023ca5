#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quenfor {

class ConfigDocument;

// frm_ersetz ("Ersetzen"): replaces the first occurrence of a text in every line of the open
// document, without regard to case, and shows how many lines held it. A run changes the document
// at once. The two texts are read from the settings when the window is made and stored when it
// closes. It does not block the main window.
class ReplaceDialog : public QDialog {
    Q_OBJECT

public:
    explicit ReplaceDialog(ConfigDocument* document, QWidget* parent = nullptr);

    // "ersetzen": one run over the whole document; returns the number of lines that held the text.
    int replace();

protected:
    void done(int result) override;

private:
    QPointer<ConfigDocument> m_document;
    QLineEdit* m_find;
    QLineEdit* m_replacement;
    QPushButton* m_run;
    QLabel* m_count;
    QLabel* m_word;
    QPushButton* m_exit;
};

} // namespace quenfor
