#pragma once

#include "desktools/processtable.h"

#include <QWidget>

#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;

namespace quenfor {

class ProcessHunt;
struct HuntTick;
class StatusHints;

// "Shooter", the process killer: ends every process whose name begins with txt_kill ten times a
// second until stopped, counts scans and kills, and lists the processes in a panel that folds
// open (Image_Klapp) and shut (Image_ZU); a click on a process shows its main window's title.
// The prefix is kept under "shooter", section "Optionen".
class ShooterWindow : public QWidget {
    Q_OBJECT

public:
    // Without a table the window works on the system's processes.
    explicit ShooterWindow(QWidget* parent = nullptr, std::unique_ptr<ProcessTable> table = {});
    ~ShooterWindow() override;

    void startHunt(); // cmd_kill; an empty prefix is refused with a message
    void stopHunt();  // cmd_stopkill
    bool isHunting() const;

    void setListOpen(bool open); // Image_Klapp opens, Image_ZU closes; opening reads the list anew
    bool isListOpen() const;
    void refreshList();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildWidgets();
    QWidget* buildListPanel();
    void showHuntState(bool running);
    void showScan(const HuntTick& tick);
    void showWindowTitle();

    // The hunt and what it has done.
    ProcessHunt* m_hunt = nullptr;
    QLineEdit* m_prefix = nullptr;
    QPushButton* m_kill = nullptr;
    QPushButton* m_stop = nullptr;
    QLabel* m_scans = nullptr;
    QLabel* m_kills = nullptr;

    // The running processes, and the list that shows them on demand.
    std::unique_ptr<ProcessTable> m_table;
    QToolButton* m_openList = nullptr;
    QWidget* m_listPanel = nullptr;
    QListWidget* m_processes = nullptr;
    QLabel* m_windowTitle = nullptr;

    StatusHints* m_hints = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace quenfor
