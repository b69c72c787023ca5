#pragma once

#include <QFrame>

class QFileSystemModel;
class QLabel;
class QPushButton;
class QTreeView;

namespace quenfor {

class StatusHints;

// The small folder browser "frameDir" of "Datei Browser": the user finds a folder and copies its
// path as text to the clipboard, for pasting into a configuration line.
class FolderPanel : public QFrame {
    Q_OBJECT

public:
    explicit FolderPanel(QWidget* parent = nullptr);

    void registerHints(StatusHints& hints);

    // Opens the tree at folder and selects it.
    void setFolder(const QString& folder);
    // The selected folder with native separators; empty when none is selected.
    QString chosenFolder() const;

signals:
    void closeRequested();

private:
    void copyChosenFolder();
    void showChosenFolder();

    QFileSystemModel* m_model;
    QTreeView* m_tree;
    QLabel* m_chosen;
    QPushButton* m_copy;
    QPushButton* m_close;
};

} // namespace quenfor
