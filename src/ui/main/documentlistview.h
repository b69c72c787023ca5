#pragma once

#include <QListView>

namespace quenfor {

class ConfigDocument;

// List1: the document's lines with multi-selection. The view's selection and the document's
// are kept the same in both directions, so line operations see what the user selected and the
// user sees what an operation selected.
class DocumentListView : public QListView {
    Q_OBJECT

public:
    explicit DocumentListView(ConfigDocument* document, QWidget* parent = nullptr);

signals:
    void lineClicked(int row);
    void rightClicked(const QPoint& globalPos);
    void leftClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void takeSelectionFromView(const QItemSelection& selected, const QItemSelection& deselected);
    void showDocumentSelection();

    ConfigDocument* m_document;
    bool m_syncing = false;
};

} // namespace quenfor
