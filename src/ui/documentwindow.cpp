#include "ui/documentwindow.h"

#include "document/configdocument.h"
#include "document/documentstorage.h"
#include "settings/mainsettings.h"
#include "ui/documentlistmodel.h"

#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QListView>
#include <QStatusBar>
#include <QVBoxLayout>

namespace quenfor {

DocumentWindow::DocumentWindow(QWidget* parent)
    : QMainWindow(parent), m_document(new ConfigDocument(this)), m_fileLabel(new QLabel(this)),
      m_list(new QListView(this)), m_status(new QLabel(this)) {
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(QStringLiteral("quenfor"));
    m_fileLabel->setObjectName(QStringLiteral("Label1"));
    m_list->setObjectName(QStringLiteral("List1"));
    m_status->setObjectName(QStringLiteral("lblstatus"));

    m_list->setModel(new DocumentListModel(m_document, this));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setUniformItemSizes(true); // keeps a million rows fast to lay out
    m_list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->addWidget(m_fileLabel);
    layout->addWidget(m_list);
    setCentralWidget(central);
    statusBar()->addWidget(m_status, 1);
    resize(900, 640);
}

bool DocumentWindow::openFile(const QString& path) {
    EncodingChoice choice;
    choice.codepage = settingValue(Setting::Codepage);
    m_status->setText(QString::fromUtf16(kReadingStatus));
    const StorageResult opened = openDocument(*m_document, path, choice);
    if (!opened.ok) {
        m_status->setText(opened.error);
        return false;
    }
    m_fileLabel->setText(QDir::toNativeSeparators(m_document->fileName()));
    m_status->setText(tr("%1 Zeilen gelesen (%2)").arg(m_document->count()).arg(m_document->encoding().displayName()));
    return true;
}

} // namespace quenfor
