#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QProgressBar;
class QPushButton;
class QTimer;

namespace quenfor {

class DriveFolderChooser;
class StatusHints;
struct DrawingCheckJob;

// frm_drw_mdl_checker ("drw_mdl_checker"): tells whether a drawing holds the model of the same
// name. A click on a drawing checks that one; cmd_check checks every drawing of the folder in a
// worker thread, with progress and a cancel button. Folder and drive are kept under "Kauzblick".
class DrawingCheckerWindow : public QWidget {
    Q_OBJECT

public:
    explicit DrawingCheckerWindow(QWidget* parent = nullptr);
    ~DrawingCheckerWindow() override;

    // The folder shown in Dir1 and listed in File1, native separators.
    QString currentFolder() const { return m_folder; }
    // Returns false (and says so in the status line) for a folder that does not exist.
    bool setCurrentFolder(const QString& folder);
    // The drawings File1 lists.
    QStringList drawingFiles() const;

    // A click on File1's entry: reads its model name into Text1 and the verdict into lblStatus;
    // lbl_modelle shows the models the drawing lists itself, when it names any.
    void checkFile(const QString& fileName);
    // cmd_check: starts the folder check (nothing happens while one runs).
    void checkFolder();
    void cancelCheck();
    bool isChecking() const { return m_job != nullptr; }

signals:
    // A folder check ended (finished or cancelled).
    void folderCheckFinished();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildWidgets();
    void restoreSettings();
    void showFolder(const QString& folder);
    void refreshFiles();
    void fileClicked(QListWidgetItem* item);
    void differingClicked(QListWidgetItem* item);
    void showProgress();
    void finishCheck();
    void setRunning(bool running);
    void setNote(const QString& note);
    void setListedModels(const QStringList& names);

    // The drawings' folder and its files.
    QString m_folder;
    DriveFolderChooser* m_chooser = nullptr;
    QListWidget* m_files = nullptr;

    // The check: the model asked for, the running job and what it found.
    QString m_codepage;
    QLineEdit* m_modelName = nullptr;
    QLabel* m_listedModels = nullptr;
    QPushButton* m_check = nullptr;
    QTimer* m_progressTimer;
    std::shared_ptr<DrawingCheckJob> m_job;
    QProgressBar* m_progressBar = nullptr;
    QPushButton* m_cancel = nullptr;
    QListWidget* m_differing = nullptr;
    QLabel* m_note = nullptr;

    StatusHints* m_hints = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace quenfor
