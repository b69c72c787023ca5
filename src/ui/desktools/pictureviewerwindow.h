#pragma once

#include "desktools/viewerconsole.h"

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <functional>

class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QScrollArea;
class QSplitter;
class QUrl;

namespace quenfor {

class DriveFolderChooser;
struct ViewerScheme;

// What the viewer reaches outside itself. Empty entries fall back to the system (the desktop's
// URL handler, the terminal); tests put stand-ins here.
struct PictureViewerLinks {
    std::function<void()> openMessenger;  // "netsend": the program's one messenger window
    std::function<void()> showMainWindow; // "quit"
    std::function<bool(const QUrl&)> openUrl;
    std::function<bool(const QString& folder)> startTerminal;
};

// vistrel: browses a folder's pictures (Drive1, Dir1, File1), shows the chosen one in Image1,
// which the wheel scrolls and the mouse drags, and runs the commands typed into the one-line
// console lblstatus.
class PictureViewerWindow : public QWidget {
    Q_OBJECT

public:
    explicit PictureViewerWindow(PictureViewerLinks links = {}, QWidget* parent = nullptr);
    ~PictureViewerWindow() override;

    QString currentFolder() const { return m_folder; }
    // Dir1's folder: File1 follows. False (and a status text) when there is no such folder.
    bool setCurrentFolder(const QString& folder);
    QStringList files() const;    // File1
    QString selectedFile() const; // the name selected in File1, empty when none
    // Selects the name in File1, which loads and shows it.
    void selectFile(const QString& name);

    // Loads the picture and shows it; on failure the status line tells why and the picture shown
    // stays.
    bool showPictureFile(const QString& path);
    QPixmap picture() const { return m_picture; }

    // Runs a console line as Enter in lblstatus does.
    void runCommand(const QString& input);
    QString statusText() const;
    QString schemeWord() const { return m_schemeWord; }
    QColor backgroundColour() const; // of the scheme, behind the picture and around the controls

protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void buildWidgets();
    void restoreSettings();
    void showFolder(const QString& folder);
    void refreshFiles();
    void fileChosen(int row);
    void showPicture(const QPixmap& picture);
    void setStatus(const QString& text);
    void applyScheme(const ViewerScheme& scheme);
    void setScheme(const QString& word);
    void resizeToDesignedSize();
    void placeSplitter();

    // The console's commands.
    void runStep(const ConsoleStep& step, const QString& input);
    void savePicture();
    void printPicture();
    void writeList();
    void deleteSelected();
    void resetWindow();
    void showInfo();
    void copyPicture();
    void pastePicture();
    void startTerminalHere();
    void openWebPage();
    bool openWithSystem(const QUrl& url);

    PictureViewerLinks m_links;
    QString m_folder;
    QString m_schemeWord;
    QColor m_background;
    QPixmap m_picture;

    DriveFolderChooser* m_chooser = nullptr;
    QListWidget* m_files = nullptr;
    QSplitter* m_splitter = nullptr;
    QScrollArea* m_pictureArea = nullptr;
    QLabel* m_image = nullptr;
    QFrame* m_info = nullptr;
    QLineEdit* m_console = nullptr;
};

} // namespace quenfor
