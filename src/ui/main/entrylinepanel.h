#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QHBoxLayout;

namespace quenfor {

struct EntryLineCheck;

// Text1 with what stands beside it: the length warning lbl_warn (a click splits a long mapkey),
// the preview lblvorschau and the favourite check icon.
class EntryLinePanel : public QWidget {
    Q_OBJECT

public:
    explicit EntryLinePanel(QWidget* parent = nullptr);

    QLineEdit* entry() const { return m_entry; }
    QString text() const;
    void setText(const QString& text);
    void showCheck(const EntryLineCheck& check);

signals:
    void textEdited(const QString& text);
    void returnPressed();
    void warningClicked();
    void favoriteCheckClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_entry;
    QLabel* m_warning;
    QLabel* m_preview;
    QLabel* m_favoriteCheck;
    QHBoxLayout* m_row;
};

// 0x00BBGGRR, as the program's colour values are written, to a QColor.
QColor colorFromBgr(int bgr);

// Twips, the program's unit of length, to pixels at the usual 15 twips a pixel.
int twipsToPixels(int twips);

} // namespace quenfor
