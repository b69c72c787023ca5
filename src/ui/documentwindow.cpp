#include "ui/documentwindow.h"

#include "document/configdocument.h"
#include "document/documentfile.h"
#include "settings/settingsstore.h"
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
    choice.codepage = SettingsStore(QStringLiteral("quenfor"))
                          .value(QStringLiteral("Optionen"), QStringLiteral("Codepage"), QStringLiteral("windows-1252"));
    m_status->setText(tr("Datei lesen..."));
    ReadResult read = readDocumentFile(path, choice);
    if (!read.ok) {
        m_status->setText(read.error);
        return false;
    }
    m_document->replaceAll(std::move(read.lines));
    m_document->setFileName(path);
    m_document->setEncoding(read.encoding);
    m_fileLabel->setText(QDir::toNativeSeparators(path));
    m_status->setText(tr("%1 Zeilen gelesen (%2)").arg(m_document->count()).arg(read.encoding.displayName()));
    return true;
}

} // namespace quenfor
