#pragma once

#include <QWidget>

#include <optional>

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QMenu;
class QPushButton;
class QToolButton;

namespace quenfor {

struct FileFamily;
class StatusHints;

// The right side of the main window: the option picker of the open file's family with its
// category box and take-over button, the Erklär-Bär's switch and button, the search.pro frame,
// the colour button and the small path display. Which parts show follows the file family.
class PickerPanel : public QWidget {
    Q_OBJECT

public:
    explicit PickerPanel(QWidget* parent = nullptr);

    // Shows and hides by the family, refills the family's picker with its built-in entries and
    // the lines of its picker source in `dataFolder` (when that file exists) and sets the
    // knowledge base path. Returns the status text ("quenfor.pro wurde gelesen") or nothing.
    QString applyFamily(const FileFamily& family, const QString& dataFolder);

    // The category box: "Alles" (0) refills the config picker from the picker source file and
    // returns kPickerSourceMissing when it does not exist; a category shows its strings.
    QString filterByCategory(int index);
    void selectCategory(int index);
    // A step of the sort by category: the category selected and filtered, lbl_kathi naming it.
    void showSortedCategory(int index);

    QListWidget* pickerList(const QString& objectName) const;
    QListWidget* visiblePicker() const;
    QStringList entries(const QString& objectName) const;
    QList<int> selectedRows(const QString& objectName) const;
    QStringList configPickerEntries() const { return entries(QStringLiteral("List2cfg")); }
    QString knowledgeBasePath() const; // lbl_configopts
    QCheckBox* explainCheck() const { return m_explain; }
    QPushButton* searchProButton() const { return m_searchProButton; }

    // The menu of the config picker's right mouse button: the entry's option with each of its
    // allowed values; choosing one acts as a click on an entry of that text. Null when none known.
    QMenu* valueMenu(const QString& entry);

    // The release whose hidden options the pickers mark ("CP6"); empty or unknown: the latest.
    void setTargetRelease(const QString& name);

    // Shows an option's folder below the picker (frame_dir); an empty folder hides it.
    void showFolder(const QString& folder);
    void showBrain(bool shown);
    void registerHints(StatusHints& hints);

signals:
    void entryClicked(const QString& text);
    void entryDoubleClicked(const QString& text);
    void takeOverClicked(const QString& pickerList);
    void explainClicked();        // img_confopts, left button
    void brainRequested();        // img_confopts, right button
    void brainClicked();          // img_hirn
    void sortByCategoryClicked(); // img_kathi
    void statusMessage(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QListWidget* makePickerList(const QString& name);
    // Greys and italicises the entries whose option the release hides, with a tooltip saying so.
    void markHiddenOptions(QListWidget* list) const;

    std::optional<int> m_release; // index into cadReleases(); none: the latest
    QString m_dataFolder;
    QString m_pickerSource;      // the family's picker source file, full path
    QFrame* m_optionFrame;       // Frame1
    QComboBox* m_categories;     // combo_kathegorie
    QLabel* m_sourceLabel;       // lbl_quenconfig
    QListWidget* m_cfg;          // List2cfg
    QListWidget* m_dtl;          // List2dtl
    QListWidget* m_pcf;          // List2pcf
    QFrame* m_addFrame;          // frame_hinzu
    QPushButton* m_allButton;    // cmdAlle
    QToolButton* m_knowledge;    // img_confopts
    QLabel* m_brain;             // img_hirn
    QToolButton* m_categorySort; // img_kathi
    QLabel* m_categoryProgress;  // lbl_kathi
    QFrame* m_searchProFrame;    // frame_search_pro
    QPushButton* m_searchProButton;
    QPushButton* m_colorButton; // cmd_Color
    QCheckBox* m_explain;       // chk_erklaerbaer
    QLabel* m_knowledgeBase;    // lbl_configopts, hidden
    QFrame* m_folderFrame;      // frame_dir
    QLabel* m_folderLabel;
    QListWidget* m_folderList;
};

} // namespace quenfor
