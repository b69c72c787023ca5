#pragma once

#include "desktools/asciitable.h"

#include <QFont>
#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;

namespace quenfor {

class StatusHints;

// "ASCII Codes": a character and its code in the code page of the `Codepage` setting, both ways,
// with the characters of codes 1 … 255 as a table to pick from.
class AsciiTableWindow : public QWidget {
    Q_OBJECT

public:
    explicit AsciiTableWindow(QWidget* parent = nullptr);

    void characterToCode(); // Command1
    void codeToCharacter(); // Command2
    void stepDown();        // cmd_down
    void stepUp();          // cmd_up
    void copyCharacter();   // Command3

private:
    void buildWidgets();
    void fillList();
    void apply(const AsciiUpdate& update);
    void selectCode(const QString& code);
    void pickItem();

    CodePageTable m_table;
    QFont m_nameFont;
    bool m_selecting = false;         // the list follows the fields without filling them again
    QLineEdit* m_character = nullptr; // Text1
    QLineEdit* m_code = nullptr;      // Text2
    QListWidget* m_list = nullptr;    // List2
    QLabel* m_status = nullptr;
    StatusHints* m_hints = nullptr;
};

} // namespace quenfor
