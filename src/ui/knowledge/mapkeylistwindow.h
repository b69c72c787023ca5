#pragma once

#include <QDialog>
#include <QPointer>
#include <QStringList>

class QListView;
class QStringListModel;
class QTimer;

namespace quenfor {

class ConfigDocument;

// frm_listmapkey: the key names of all mapkeys of the document. A click on a name selects, marks
// and shows the first document line that holds "mapkey " + name + " ". The list follows edits of
// the document, so a name never points at a line that is gone. It does not block the main window.
class MapkeyListWindow : public QDialog {
    Q_OBJECT

public:
    explicit MapkeyListWindow(ConfigDocument* document, QWidget* parent = nullptr);

    QStringList names() const;

    // Reads the names from the document again; the current name stays current where it still is.
    void reload();

    // What a click on row `row` of List1 does; returns the document line found, or -1.
    int findName(int row);

private:
    QPointer<ConfigDocument> m_document;
    QStringListModel* m_names;
    QTimer* m_reloadTimer;
    QListView* m_list = nullptr;
};

} // namespace quenfor
