#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListView;
class QListWidget;
class QProgressBar;
class QPushButton;
class QStringListModel;
class QTimer;

namespace quenfor {

class DriveFolderChooser;
class StatusHints;
class TreeRun;

// frmPurge, "Dr.Fegel": lists the older numbered versions of every object in a folder and deletes
// them (all or the selected), cleans the CAD system's by-product files by a pattern list, and does
// both for a whole tree. Long runs go in small slices on a timer, so the window answers, shows
// progress and can be cancelled between any two folders (or files).
class PurgeWindow : public QWidget {
    Q_OBJECT

public:
    explicit PurgeWindow(QWidget* parent = nullptr);
    ~PurgeWindow() override;

    QString currentFolder() const { return m_folder; }
    // Dir1's folder: File1 and File2 follow; the purge list keeps the previous analysis.
    void setCurrentFolder(const QString& folder);

    void analyse();       // Command1
    void purgeAll();      // cmd_delAll
    void purgeSelected(); // cmd_delsel
    void purgeTree();     // Command2
    void clean();         // cmd_clean
    void cleanTree();     // Command3
    void cancelRun();     // stops a running delete or tree run after the current step
    bool isRunning() const;

    QStringList purgeList() const; // List4

signals:
    // A delete or tree run ended (finished or cancelled).
    void runFinished();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildWidgets();
    QWidget* buildOptionsFrame();
    void showFolder(const QString& folder);
    void refreshFileLists();
    void applyPatternText(const QString& text); // shows the text and makes the clean list follow it
    void showPatternText(const QString& text);  // text box and extensions list only
    void startListDelete(const QStringList& paths, bool isClean);
    void startTreeRun(bool isClean);
    void runSlice();
    void finishRun();
    void setRunning(bool running);
    void showChangeTime(const QModelIndex& index, const QStringListModel* model, bool fullPaths);
    void showOptions();
    void addExtension();
    void removeExtensions();
    void applyOptions();
    void resetPatterns();

    QString m_folder;
    QString m_cleanPatterns; // File2's patterns: set on load and by OK, not by typing in the box
    std::unique_ptr<TreeRun> m_tree;
    QStringList m_pendingDeletes;
    qsizetype m_deleteIndex = 0;
    QStringList m_deleted, m_vanished, m_failed;
    qsizetype m_cleanListed = -1; // clean of the current folder: the number of files listed
    bool m_cancelRequested = false;
    bool m_inSlice = false;

    QStringListModel* m_files;
    QStringListModel* m_purge;
    QStringListModel* m_cleanFiles;
    QTimer* m_sliceTimer;
    StatusHints* m_hints = nullptr;
    DriveFolderChooser* m_chooser = nullptr;
    QListView* m_fileList = nullptr;
    QListView* m_purgeList = nullptr;
    QListView* m_cleanList = nullptr;
    QLineEdit* m_patterns = nullptr;
    QCheckBox* m_askPurge = nullptr;
    QCheckBox* m_askClean = nullptr;
    QList<QPushButton*> m_actionButtons;
    QGroupBox* m_optionsFrame = nullptr;
    QListWidget* m_extensions = nullptr;
    QStringList m_extensionsBefore; // LstendOrg
    QLineEdit* m_newExtension = nullptr;
    QProgressBar* m_progressBar = nullptr;
    QLabel* m_progressText = nullptr;
    QPushButton* m_cancel = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace quenfor
