#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quenfor {

class DriveFolderChooser;
class StatusHints;

// The frame "Favoriten" (Favoritenkonstruktor): builds a browser_favorite line from a folder
// chosen in a small drive and folder browser and a display name, and takes a favourite line of
// the entry line apart into these fields again. The main window places it, appends the lines it
// hands over and shows its help text in the explanation panel.
class FavoritesPanel : public QFrame {
    Q_OBJECT

public:
    explicit FavoritesPanel(QWidget* parent = nullptr);

    void registerHints(StatusHints& hints);

    // Takes a favourite line apart into path and name and shows the frame. Returns the entry line
    // as the window should show it afterwards (one trailing blank removed). Another line leaves
    // the fields as they are and only shows the frame.
    QString takeApart(const QString& entryLine);

    QString path() const;
    QString name() const;
    // Moves the folder browser (and its drive) to folder; false when it is no readable folder.
    bool showFolder(const QString& folder);

signals:
    // "Favorit hinzufügen": the new line for the end of the document.
    void lineToDocument(const QString& line);
    // A click on the help label: the text for the explanation panel.
    void helpRequested(const QString& text);
    void closeRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void folderChosen(const QString& folder);
    void pathEdited(const QString& text);
    void colourPath();
    void showMessage(const QString& text);

    DriveFolderChooser* m_chooser;
    QLineEdit* m_path;
    QLineEdit* m_name;
    QPushButton* m_add;
    QPushButton* m_close;
    QLabel* m_help;
    QLabel* m_message;
    bool m_followingPath = false; // the browser follows the typed path: leave the text alone
};

} // namespace quenfor
