#include "ui/knowledge/pathconverterwindow.h"

#include "ui/widgets/qtclipboard.h"

#include "knowledge/pathconvertersettings.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace quenfor {

PathConverterWindow::PathConverterWindow(QWidget* parent, PathConverters converters)
    : QDialog(parent), m_converters(std::move(converters)), m_path(new QLineEdit(this)),
      m_toNetwork(new QPushButton(tr("In Netzwerkpfad umwandeln"), this)),
      m_toDrive(new QPushButton(tr("In Laufwerkspfad umwandeln"), this)),
      m_toShort(new QPushButton(tr("Kurzer Name (8.3)"), this)), m_toLong(new QPushButton(tr("Langer Name"), this)),
      m_namesNote(new QLabel(this)), m_result(new QLineEdit(this)), m_copy(new QPushButton(tr("Kopieren"), this)),
      m_message(new QLabel(this)), m_exit(new QPushButton(tr("Schließen"), this)) {
    setObjectName(u"frmPfadolin"_s);
    setWindowTitle(tr("Pfad-Umwandlung"));
    setModal(false);

    m_path->setObjectName(u"txt_pfad"_s);
    m_toNetwork->setObjectName(u"cmd_netzwerk"_s);
    m_toDrive->setObjectName(u"cmd_laufwerk"_s);
    m_toShort->setObjectName(u"cmd_kurz"_s);
    m_toLong->setObjectName(u"cmd_lang"_s);
    m_namesNote->setObjectName(u"lbl_kurzlang"_s);
    m_result->setObjectName(u"txt_ergebnis"_s);
    m_copy->setObjectName(u"cmd_kopieren"_s);
    m_message->setObjectName(u"lbl_meldung"_s);
    m_exit->setObjectName(u"cmd_exit"_s);

    m_path->setClearButtonEnabled(true);
    m_path->setMinimumWidth(55 * fontMetrics().averageCharWidth());
    // The result can be selected and copied in part, but it is not typed into.
    m_result->setReadOnly(true);
    m_copy->setEnabled(false);
    m_copy->setToolTip(tr("Kopiert das Ergebnis in die Zwischenablage"));
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->setMinimumHeight(2 * fontMetrics().lineSpacing());
    // Enter in the path entry converts; no button takes it over.
    for (QPushButton* button : {m_toNetwork, m_toDrive, m_toShort, m_toLong, m_copy, m_exit})
        button->setAutoDefault(false);
    // Where the file systems keep no short names both forms are the path itself: the buttons are
    // greyed and the note says why, rather than offering a conversion that changes nothing.
    m_toShort->setToolTip(tr("Wandelt den Pfad in seine kurze Form aus 8.3-Namen um"));
    m_toLong->setToolTip(tr("Wandelt den Pfad in seine Form aus langen Namen um"));
    m_namesNote->setWordWrap(true);
    if (!m_converters.shortNames) {
        const QString reason = shortNamesUnavailableText();
        for (QPushButton* button : {m_toShort, m_toLong}) {
            button->setEnabled(false);
            button->setToolTip(reason);
        }
        m_namesNote->setText(reason);
    }
    m_namesNote->setVisible(!m_converters.shortNames);

    auto* intro = new QLabel(tr("Wandelt einen Pfad auf einem Netzlaufwerk oder unter einer eingehängten "
                                "Netzwerkfreigabe in seinen Netzwerkpfad um, und einen Netzwerkpfad zurück in den "
                                "Pfad auf dem verbundenen Laufwerk; einen vorhandenen Pfad auch in seine kurze "
                                "(8.3) oder lange Form."),
                             this);
    intro->setWordWrap(true);

    auto* pathLabel = new QLabel(tr("Pfad:"), this);
    pathLabel->setBuddy(m_path);
    auto* resultLabel = new QLabel(tr("Ergebnis:"), this);
    resultLabel->setBuddy(m_result);

    auto* conversions = new QHBoxLayout;
    conversions->addWidget(m_toNetwork);
    conversions->addWidget(m_toDrive);
    conversions->addWidget(m_toShort);
    conversions->addWidget(m_toLong);
    conversions->addStretch();

    auto* grid = new QGridLayout;
    grid->addWidget(pathLabel, 0, 0);
    grid->addWidget(m_path, 0, 1, 1, 2);
    grid->addLayout(conversions, 1, 1, 1, 2);
    grid->addWidget(m_namesNote, 2, 1, 1, 2);
    grid->addWidget(resultLabel, 3, 0);
    grid->addWidget(m_result, 3, 1);
    grid->addWidget(m_copy, 3, 2);
    grid->setColumnStretch(1, 1);

    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(m_exit);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(grid);
    layout->addWidget(m_message);
    layout->addLayout(bottom);

    m_path->setText(loadConverterPath());

    connect(m_toNetwork, &QPushButton::clicked, this, [this] { convert(PathDirection::ToNetwork); });
    connect(m_toDrive, &QPushButton::clicked, this, [this] { convert(PathDirection::ToDrive); });
    connect(m_toShort, &QPushButton::clicked, this, [this] { convert(PathDirection::ToShort); });
    connect(m_toLong, &QPushButton::clicked, this, [this] { convert(PathDirection::ToLong); });
    connect(m_path, &QLineEdit::returnPressed, this, [this] { convert(naturalDirection(m_path->text())); });
    connect(m_copy, &QPushButton::clicked, this, &PathConverterWindow::copyResult);
    connect(m_exit, &QPushButton::clicked, this, &PathConverterWindow::reject);
}

void PathConverterWindow::setPath(const QString& path) {
    m_path->setText(path);
}

QString PathConverterWindow::path() const {
    return m_path->text();
}

QString PathConverterWindow::result() const {
    return m_result->text();
}

void PathConverterWindow::convert(PathDirection direction) {
    const PathConversion conversion = convertPath(m_path->text(), direction, m_converters);
    m_result->setText(conversion.path);
    m_result->setCursorPosition(0);
    m_copy->setEnabled(!conversion.path.isEmpty());
    showMessage(conversion.message, !conversion.converted);
}

void PathConverterWindow::copyResult() {
    const QString text = m_result->text();
    if (text.isEmpty())
        return;
    QtClipboard().setText(text);
    showMessage(tr("Das Ergebnis steht in der Zwischenablage."), false);
}

void PathConverterWindow::done(int result) {
    // Every way out (the button, Escape, the window's close box) passes here.
    storeConverterPath(m_path->text());
    QDialog::done(result);
}

void PathConverterWindow::showMessage(const QString& text, bool problem) {
    m_message->setText(text);
    m_message->setStyleSheet(problem ? u"color: #c00000;"_s : QString());
}

} // namespace quenfor
