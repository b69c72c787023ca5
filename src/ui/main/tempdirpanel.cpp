#include "ui/main/tempdirpanel.h"

#include "ui/widgets/panelheader.h"

#include "settings/tempdircheck.h"
#include "settings/trailingseparator.h"

#include <QColor>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

TempDirPanel::TempDirPanel(QWidget* parent)
    : QFrame(parent), m_entry(new QLineEdit(this)), m_info(new QLabel(this)), m_checkResult(new QLabel(this)) {
    setObjectName(u"Tempdir"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);

    m_entry->setObjectName(u"txt_tempdir"_s);
    m_info->setObjectName(u"lbl_Info"_s);
    m_checkResult->setObjectName(u"lbl_TempDirCheck"_s);
    for (QLabel* label : {m_info, m_checkResult}) {
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    // Room for the explanation, so the frame does not jump when it appears, and for long paths.
    m_info->setMinimumHeight(4 * fontMetrics().lineSpacing());
    m_entry->setMinimumWidth(60 * fontMetrics().averageCharWidth());

    auto* close = new QPushButton(tr("Schließen"), this);
    close->setObjectName(u"cmd_tempdir_schliessen"_s);
    auto* header = makePanelHeader(this, tr("Temp. Verzeichnis"), close, [this] { emit closeRequested(); });

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(m_info);
    layout->addWidget(m_entry);
    layout->addWidget(m_checkResult);
    layout->addStretch();

    connect(m_entry, &QLineEdit::textChanged, this, &TempDirPanel::colourText);
    connect(m_entry, &QLineEdit::returnPressed, this, &TempDirPanel::check);
    colourText();
}

void TempDirPanel::setText(const QString& text) {
    m_entry->setText(text);
}

QString TempDirPanel::folder() const {
    const QString text = m_entry->text();
    return text.isEmpty() ? QString() : withTrailingSeparator(text);
}

void TempDirPanel::enterEvent(QEnterEvent* event) {
    m_info->setText(tr("Geben Sie ein Verzeichnis an in dem quenfor temporär Daten ablegen kann. Diese Daten werden "
                       "spätestens beim Schließen des Programms wieder gelöscht."));
    QFrame::enterEvent(event);
}

void TempDirPanel::colourText() {
    if (tempDirTextState(m_entry->text()) == TempDirTextState::Exists) {
        // An empty palette drops the red and lets the entry follow the window's colours again.
        m_entry->setPalette(QPalette());
        return;
    }
    QPalette palette = m_entry->palette();
    palette.setColor(QPalette::Text, QColor(255, 0, 0));
    m_entry->setPalette(palette);
}

void TempDirPanel::check() {
    if (m_entry->text().isEmpty())
        return;
    const TempDirCheck result = checkTempDir(m_entry->text());
    // The entry shows the folder as it is used: with its separator at the end.
    m_entry->setText(result.folder);
    if (!result.ok) {
        m_checkResult->setText(result.message);
        return;
    }
    m_checkResult->setText(result.displayText);
    emit tempDirChanged(result.folder);
}

} // namespace quenfor
