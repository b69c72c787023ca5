#pragma once

#include "common/pathconversion.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quenfor {

// frmPfadolin ("Pfad-Umwandlung"): turns a path on a network drive or under a network mount into
// its network form and back, an existing path into its short (8.3) or long form, and copies the result to the
// clipboard. A path that cannot be converted stays as it is, with a message in the window. The last path typed is kept
// in the settings of "Pfadolin": read when the window is made, stored when it closes. It does not block the main
// window.
class PathConverterWindow : public QDialog {
    Q_OBJECT

public:
    // Tests pass converters over a fixed mount table; the program uses the machine's own.
    explicit PathConverterWindow(QWidget* parent = nullptr, PathConverters converters = PathConverters::system());

    void setPath(const QString& path);
    QString path() const;
    QString result() const;

    // Converts the entry's path and shows the result (or the unchanged path and a message).
    void convert(PathDirection direction);
    // Puts the result on the clipboard.
    void copyResult();

protected:
    void done(int result) override;

private:
    void showMessage(const QString& text, bool problem);

    PathConverters m_converters;
    QLineEdit* m_path;
    QPushButton* m_toNetwork;
    QPushButton* m_toDrive;
    QPushButton* m_toShort;
    QPushButton* m_toLong;
    QLabel* m_namesNote;
    QLineEdit* m_result;
    QPushButton* m_copy;
    QLabel* m_message;
    QPushButton* m_exit;
};

} // namespace quenfor
