#include "ui/main/tempdirpanel.h"

#include "ui/widgets/panelheader.h"

#include "knowledge/optionreleases.h"
#include "settings/mainsettings.h"
#include "settings/tempdircheck.h"
#include "settings/trailingseparator.h"

#include <QColor>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

TempDirPanel::TempDirPanel(QWidget* parent)
    : QFrame(parent), m_entry(new QLineEdit(this)), m_info(new QLabel(this)), m_checkResult(new QLabel(this)),
      m_release(new QComboBox(this)) {
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

    m_release->setObjectName(u"combo_zielversion"_s);
    m_release->addItem(tr("keine"), QString());
    // Newest first: most companies move to a recent release, few go back.
    const QList<CadRelease>& releases = cadReleases();
    for (auto it = releases.rbegin(); it != releases.rend(); ++it)
        m_release->addItem(u"%1 (%2)"_s.arg(it->title, it->name), it->name);
    m_release->setToolTip(tr("Prüfen meldet Optionen, die diese Version nicht kennt oder versteckt; die "
                             "Vorauswahl markiert ihre versteckten Optionen."));
    auto* releaseLabel = new QLabel(tr("Zielversion:"), this);
    releaseLabel->setBuddy(m_release);
    auto* releaseRow = new QHBoxLayout;
    releaseRow->addWidget(releaseLabel);
    releaseRow->addWidget(m_release, 1);
    layout->addLayout(releaseRow);
    layout->addStretch();
    connect(m_release, &QComboBox::activated, this, [this] {
        const QString name = m_release->currentData().toString();
        if (!setSettingValue(Setting::Zielversion, name))
            m_checkResult->setText(tr("Die Zielversion konnte nicht gespeichert werden."));
        emit targetReleaseChanged(name);
    });

    connect(m_entry, &QLineEdit::textChanged, this, &TempDirPanel::colourText);
    connect(m_entry, &QLineEdit::returnPressed, this, &TempDirPanel::check);
    colourText();
}

void TempDirPanel::setText(const QString& text) {
    m_entry->setText(text);
}

void TempDirPanel::setTargetRelease(const QString& name) {
    const std::optional<int> index = cadReleaseIndex(name);
    m_release->setCurrentIndex(index ? m_release->findData(cadReleases()[*index].name) : 0);
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
