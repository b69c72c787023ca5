#pragma once

#include "desktools/shotcounter.h"
#include "ui/desktools/screencapture.h"

#include <QWidget>

class QGroupBox;
class QLabel;
class QLineEdit;
class QScreen;
class QTimer;

namespace quenfor {

class DriveFolderChooser;
class StatusHints;

// The screenshot tool: photographs the rectangle X, Y, BREITE, HOEHE or the whole screen without
// itself, puts the screen on the clipboard like the Print key, shows the shot in Image1 and saves
// it as a numbered bitmap in the chosen folder (Frame6). The four fields and the window's place
// are kept under "quenfor", section "Optionen".
class ScreenshotWindow : public QWidget {
    Q_OBJECT

public:
    // How long the window stays hidden before the whole screen is taken, so that the desktop has
    // repainted the place where it stood.
    static constexpr int kHiddenMs = 400;

    explicit ScreenshotWindow(QWidget* parent = nullptr);

    QString targetFolder() const;
    // Dir2's folder; a folder that does not exist is still taken (shots are then not saved).
    void setTargetFolder(const QString& folder);

    void shootRectangle();   // cmd_ScreenShot
    void shootWholeScreen(); // cmd_All; the shot follows on Timer1
    void clearPreview();     // clear

    quint16 counter() const { return m_counter.value(); }
    // The file the last shot was meant for, saved or not.
    QString lastShotFile() const { return m_lastFile; }

signals:
    // A shot is done (saved, skipped or failed), and the window is visible again.
    void shotFinished();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildWidgets();
    QGroupBox* buildFolderFrame();
    void showTargetFolder(const QString& folder);
    void showFolderFrame();
    void placeWindow(int left, int top);
    void takeCounterFromField();
    bool prepareShot(bool wholeScreen);
    void finishWholeScreen();
    // The Print key: the screen to the clipboard and into the preview.
    DesktopPicture pressPrintKey(QScreen* shown);
    void save(const QPixmap& shot);
    void showPreview(const QPixmap& picture);
    void finishShot();

    StatusHints* m_hints = nullptr;
    QLabel* m_status = nullptr;

    // The part of the screen taken.
    QLineEdit* m_x = nullptr;
    QLineEdit* m_y = nullptr;
    QLineEdit* m_width = nullptr;
    QLineEdit* m_height = nullptr;
    bool m_shooting = false;

    // Where the pictures go and what they are called.
    ShotCounter m_counter;
    QString m_lastFile;
    QLineEdit* m_baseName = nullptr;
    QLineEdit* m_count = nullptr;
    QLabel* m_folderLabel = nullptr;
    QGroupBox* m_folderFrame = nullptr;
    DriveFolderChooser* m_chooser = nullptr;

    // The last picture.
    QPixmap m_preview;
    QLabel* m_image = nullptr;
    QTimer* m_showAgain = nullptr;
};

} // namespace quenfor
