#pragma once

#include "cadfiles/batchmapkeys.h"

#include <QStringList>
#include <QWidget>

class QComboBox;
class QFileSystemModel;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QTreeView;

namespace quenfor {

class StatusHints;

// frmTastomat, the "Mapkey-Generator": the user picks a folder and, by ";"-separated patterns,
// the files in it, chooses a template, sees the mapkey lines and writes them as doit.pro into a
// chosen folder for the CAD system to run. Settings live under "Tastomat": read when the window
// is made, stored when it closes. It does not block the main window.
class TastomatWindow : public QWidget {
    Q_OBJECT

public:
    explicit TastomatWindow(QWidget* parent = nullptr);

    // Shows the files of folder; a folder that does not exist leaves the list empty with a message.
    void setFolder(const QString& folder);
    QString folder() const { return m_folder; }
    void setPatterns(const QString& patterns);
    QString patterns() const;

    QStringList listedFiles() const;
    QStringList selectedFiles() const;
    void selectAllFiles();
    void selectFiles(const QStringList& names);

    void setTemplateId(const QString& id);
    QString templateId() const;
    void setParameters(const BatchParameters& parameters);
    BatchParameters parameters() const { return m_parameters; }

    // Folder of doit.pro; empty means the folder of the files.
    void setTargetFolder(const QString& folder);

    // The lines doit.pro would get now.
    QStringList generatedLines() const { return m_result.lines; }

    // Opens the parameter dialog (modal); its OK regenerates the lines.
    void editParameters();
    // Writes doit.pro, asking first when files were left out or the file exists. Returns true when
    // it was written.
    bool writeDoit();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildWidgets();
    void listFiles();
    void regenerate();
    void chooseTargetFolder();
    void showStatus(const QString& text);

    StatusHints* m_hints = nullptr;
    QLabel* m_status = nullptr;

    // The drawings' folder and the files chosen in it.
    QString m_folder;
    QFileSystemModel* m_folderModel = nullptr;
    QTreeView* m_folderTree = nullptr;
    QLineEdit* m_folderEdit = nullptr;
    QComboBox* m_patterns = nullptr;
    QListWidget* m_files = nullptr;
    QLabel* m_count = nullptr;
    QPushButton* m_all = nullptr;
    QPushButton* m_none = nullptr;

    // The mapkeys made from them, and where they go.
    BatchParameters m_parameters;
    QComboBox* m_template = nullptr;
    QPushButton* m_parametersButton = nullptr;
    BatchResult m_result;
    QPlainTextEdit* m_preview = nullptr;
    QLabel* m_problems = nullptr;
    QLineEdit* m_target = nullptr;
    QPushButton* m_chooseTarget = nullptr;
    QPushButton* m_write = nullptr;
    QPushButton* m_close = nullptr;
};

} // namespace quenfor
