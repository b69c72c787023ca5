#pragma once

#include <QFrame>

class QLineEdit;
class QListWidget;

namespace quenfor {

class DriveFolderChooser;

// The text editor's two file boxes, floating over its text and movable with the right mouse
// button: the open box "Dateiauswahl" (Drive1, Dir1, File1, Filter, cmdLoad) and the save-as box
// "Dateiauswahl2" (Drive2, Dir2, the name box txt_name, saveas). The box only reports what the
// user chose; the window opens and saves.
class SkribbFileBox : public QFrame {
    Q_OBJECT

public:
    enum class Mode { Open, SaveAs };
    SkribbFileBox(Mode mode, QWidget* parent);

    // Shows the folder and selects its drive; false (and nothing changes) when it does not exist.
    bool setFolder(const QString& folder);
    QString folder() const;
    QString drive() const;

    // The open box's pattern and its listed files.
    void setPattern(const QString& pattern);
    QString pattern() const;
    QStringList files() const;
    // Selects a listed file in the open box; false when it is not listed.
    bool selectFile(const QString& name);

    // The save-as box's name.
    void setFileName(const QString& name);

    // Shows the box at its place over the parent, or where the user last dragged it.
    void showOverParent(QPoint defaultPlace);

signals:
    // The open box: the chosen file's folder and name; the name is empty when none is chosen.
    void loadRequested(const QString& folder, const QString& name);
    void saveAsRequested(const QString& folder, const QString& name);
    void folderChanged(const QString& folder, const QString& drive);

private:
    void showFolder(const QString& folder);
    void refreshFiles();
    void requestLoad();

    Mode m_mode;
    bool m_placed = false;
    DriveFolderChooser* m_chooser;
    QListWidget* m_files = nullptr;
    QLineEdit* m_pattern = nullptr;
    QLineEdit* m_name = nullptr;
};

} // namespace quenfor
