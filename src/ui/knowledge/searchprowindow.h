#pragma once

#include "knowledge/folderlister.h"

#include <QStringList>
#include <QWidget>

#include <memory>

class QLabel;
class QListView;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStringListModel;
class QTimer;

namespace quenfor {

class DriveFolderChooser;
class StatusHints;
struct SearchProJob;

// search_pro, the "search.pro-Generator": lists every folder below a start folder and hands the
// list, or a selection of it, to the main window's document. The walk runs in a worker thread: the
// window shows how many folders were found and can cancel it. The window talks to the main window
// only through its signals.
class SearchProWindow : public QWidget {
    Q_OBJECT

public:
    // lister: where the folders come from (tests pass their own); it must outlive every walk, which
    // may end after the window.
    explicit SearchProWindow(const QString& startFolder, QWidget* parent = nullptr,
                             const FolderLister& lister = systemFolderLister());
    ~SearchProWindow() override;

    // The current folder of Dir1, native separators.
    QString currentFolder() const { return m_folder; }
    void setCurrentFolder(const QString& folder);

    // Command1: starts the walk from the current folder (nothing happens while one runs).
    void generate();
    // Stops a running walk; its list is dropped.
    void cancelGeneration();
    bool isGenerating() const { return m_job != nullptr; }
    QStringList entries() const;

signals:
    // cmd_toform (all = true: the main window also shows its search.pro frame and names an
    // unnamed document "search.pro") and cmd_selectedtoform (all = false): append lines.
    void linesToDocument(const QStringList& lines, bool all);
    // cmd_search_file: the document's new file name; the main window runs its file family rules.
    void fileNameChosen(const QString& path);
    // Command3: the main window shows its search.pro frame, sets txt_save to "search.pro" and
    // names an unnamed document "search.pro"; the window closes itself.
    void closing();
    // A walk ended (finished, failed or cancelled).
    void generationFinished();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildWidgets();
    void showFolder(const QString& folder);
    void showProgress();
    void finishGeneration();
    void setRunning(bool running);
    void transferAll();
    void transferSelection();
    void chooseFileName();
    void showSaveInfo();
    void closeGenerator();

    // The folder the walk starts from.
    const FolderLister& m_lister;
    QString m_folder;
    DriveFolderChooser* m_chooser = nullptr;
    QLabel* m_startFolder = nullptr;

    // The walk and the folders it found.
    QStringListModel* m_entries;
    QTimer* m_progressTimer;
    std::shared_ptr<SearchProJob> m_job;
    QPushButton* m_generate = nullptr;
    QListView* m_list = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_hidden = nullptr;
    QLabel* m_unreadable = nullptr;
    QProgressBar* m_progressBar = nullptr;
    QLabel* m_progressText = nullptr;
    QPushButton* m_cancel = nullptr;

    // What becomes of them.
    QPushButton* m_transferAll = nullptr;
    QPushButton* m_transferSelection = nullptr;
    QPushButton* m_createFile = nullptr;
    QPushButton* m_saveInfo = nullptr;
    QPlainTextEdit* m_saveInfoText = nullptr;
    QPushButton* m_close = nullptr;

    StatusHints* m_hints = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace quenfor
