#pragma once

#include <QDialog>
#include <QPointer>
#include <QStringList>

class QListView;
class QStringListModel;

namespace quenfor {

class ConfigDocument;

// frm_mapkey: the mapkey first lines that occur more than once in the document. A double-click on
// an entry, or "Alle markieren" for all of them, adds the document lines that begin like the
// entry to the main list's selection, where the user deletes them. It does not block the main
// window.
class DuplicateMapkeyWindow : public QDialog {
    Q_OBJECT

public:
    explicit DuplicateMapkeyWindow(ConfigDocument* document, QWidget* parent = nullptr);

    // img_dmapkeys: searches the document anew and shows the window when it found duplicates.
    // Without duplicates the window is left as it is (hidden, or open with an empty list) and
    // only its caption says so. Returns the text for the main window's status line.
    QString findDuplicates();

    QStringList entries() const;

    // Adds the lines of one entry (a row of List5) or of all entries to the document's selection.
    void markEntry(int row);
    void markAll();

private:
    QPointer<ConfigDocument> m_document;
    QStringListModel* m_entries;
    QListView* m_list = nullptr;
};

} // namespace quenfor
