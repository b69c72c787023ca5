#pragma once

#include <QFrame>

class QComboBox;
class QFileSystemModel;
class QLabel;
class QLineEdit;
class QListView;
class QModelIndex;
class QPushButton;

namespace quenfor {

class DriveFolderChooser;

// The file chooser "Dateiauswahl": drive, folder and file lists for opening, and the save name for
// saving as or saving a copy into the shown folder. The panel only reports what the user chose;
// the window opens and saves.
class FileChooserPanel : public QFrame {
    Q_OBJECT

public:
    explicit FileChooserPanel(QWidget* parent = nullptr);

    // Shows folder in the lists and selects its drive. A folder that does not exist or cannot be
    // read is refused with a message in the panel; the panel then keeps its folder and returns false.
    bool setFolder(const QString& folder);
    // The shown folder with native separators; a root keeps its separator ("/", "C:\").
    QString folder() const;
    // The root of the shown folder's drive, as the drive list names it.
    QString drive() const;

    void setSaveName(const QString& name);
    QString saveName() const;

    // ";"-separated wildcards for the file list.
    void setPattern(const QString& pattern);
    QString pattern() const;
    // The program's file types in lower and upper case.
    static QString defaultPattern();
    // Every file.
    static QString allFilesPattern();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void fileChosen(const QString& fullPath);
    void saveAsRequested(const QString& folder, const QString& name);
    void saveCopyRequested(const QString& folder, const QString& name);
    void folderChanged(const QString& folder, const QString& drive);
    void closeRequested();

private:
    void showFolder(const QString& folder);
    void enterFolder(const QModelIndex& index);
    void goUp();
    void chooseFile(const QModelIndex& index);
    void applyPattern();
    void requestSaveAs();
    void requestSaveCopy();
    void showMessage(const QString& text);

    QString m_announced; // the folder folderChanged named last
    DriveFolderChooser* m_chooser;
    QLabel* m_folderLabel;
    QPushButton* m_up;
    QListView* m_folders;
    QFileSystemModel* m_fileModel;
    QListView* m_files;
    QComboBox* m_pattern;
    QLineEdit* m_saveName;
    QPushButton* m_saveAs;
    QLabel* m_message;
};

} // namespace quenfor
