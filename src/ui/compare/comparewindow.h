#pragma once

#include "document/documentfile.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QTableView;

namespace quenfor {

class DiffTableModel;

// "Vergleichen": file A and file B, and what B sets differently, side by side. A starts as the
// file open in the main window.
class CompareWindow : public QWidget {
    Q_OBJECT

public:
    CompareWindow(const QString& fileA, const EncodingChoice& encoding, QWidget* parent = nullptr);

    DiffTableModel& model() const { return *m_model; }
    // Reads both files and shows their differences, or in the summary line why it cannot.
    void compare();

private:
    void chooseFile(QLineEdit* field, const QString& title);

    EncodingChoice m_encoding;
    QLineEdit* m_fileA = nullptr;
    QLineEdit* m_fileB = nullptr;
    QLabel* m_summary = nullptr;
    QTableView* m_table = nullptr;
    DiffTableModel* m_model = nullptr;
};

} // namespace quenfor
