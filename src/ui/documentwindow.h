#pragma once

#include <QMainWindow>

class QLabel;
class QListView;

namespace quenfor {

class ConfigDocument;

// A plain window over one document: the path of the open file above, its lines below.
class DocumentWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit DocumentWindow(QWidget* parent = nullptr);

    // Reads the file into the document; on failure the reason stands in the status line.
    bool openFile(const QString& path);
    ConfigDocument* document() const { return m_document; }

private:
    ConfigDocument* m_document;
    QLabel* m_fileLabel;
    QListView* m_list;
    QLabel* m_status;
};

} // namespace quenfor
