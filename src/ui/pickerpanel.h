#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QListWidget;
class QPushButton;

namespace quenfor {

struct FileFamily;

// The right side of the main window: the option picker of the open file's family, the category
// box, the add frame, the search.pro frame and the colour button. Which of them shows, and which
// picker list is filled, follows the file family.
class PickerPanel : public QWidget {
    Q_OBJECT

public:
    explicit PickerPanel(QWidget* parent = nullptr);

    // Shows and hides by the family and fills its picker list from the option list file in
    // `dataFolder` when that file exists. Returns the status text ("quenfor.pro wurde gelesen")
    // or an empty string.
    QString applyFamily(const FileFamily& family, const QString& dataFolder);

    QListWidget* pickerList(const QString& objectName) const;
    QStringList configPickerEntries() const;
    QString knowledgeBasePath() const; // lbl_configopts
    QPushButton* colorButton() const { return m_colorButton; }
    QPushButton* searchProButton() const { return m_searchProButton; }
    QCheckBox* explainCheck() const { return m_explain; }

private:
    QFrame* m_optionFrame;    // Frame1
    QComboBox* m_categories;  // combo_kathegorie
    QListWidget* m_cfg;       // List2cfg
    QListWidget* m_dtl;       // List2dtl
    QListWidget* m_pcf;       // List2pcf
    QFrame* m_addFrame;       // frame_hinzu
    QPushButton* m_allButton; // cmdAlle
    QFrame* m_searchProFrame; // frame_search_pro
    QPushButton* m_searchProButton;
    QPushButton* m_colorButton; // cmd_Color
    QCheckBox* m_explain;       // chk_erklaerbaer
    QLabel* m_knowledgeBase;    // lbl_configopts, hidden
};

} // namespace quenfor
