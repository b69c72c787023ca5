#include "ui/main/colourpanel.h"

#include "ui/widgets/panelheader.h"

#include "settings/colourschemes.h"

#include <QColor>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

QString cssColour(const RgbColour& c) {
    return QColor(c.red, c.green, c.blue).name();
}

} // namespace

QPushButton* makeColourSwatch(const ColourScheme& scheme, QWidget* parent) {
    auto* swatch = new QPushButton(scheme.name, parent);
    swatch->setObjectName(scheme.name);
    swatch->setMinimumSize(88, 40);
    swatch->setCursor(Qt::PointingHandCursor);
    swatch->setStyleSheet(u"QPushButton { color: %1; background-color: %2; border: 1px solid #808080; "
                          u"border-radius: 3px; padding: 6px 12px; }"
                          u"QPushButton:hover, QPushButton:focus { border: 2px solid palette(highlight); }"_s.arg(
                              cssColour(scheme.text), cssColour(scheme.background)));
    return swatch;
}

ColourPanel::ColourPanel(QWidget* parent) : QFrame(parent), m_schemeLabel(new QLabel(this)) {
    setObjectName(u"Farben"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);

    m_schemeLabel->setObjectName(u"lbl_schwarzweissblau"_s);
    m_schemeLabel->hide();

    auto* close = new QPushButton(tr("Schließen"), this);
    close->setObjectName(u"cmd_farben_schliessen"_s);
    auto* header = makePanelHeader(this, tr("Farben einstellen"), close, [this] { emit closeRequested(); });

    auto* swatches = new QHBoxLayout;
    for (const QString& name : colourSchemeNames()) {
        auto* swatch = makeColourSwatch(*colourScheme(name), this);
        connect(swatch, &QPushButton::clicked, this, [this, name] { choose(name); });
        swatches->addWidget(swatch);
    }
    swatches->addStretch();

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(header);
    layout->addWidget(new QLabel(tr("Farben der Liste:"), this));
    layout->addLayout(swatches);
    layout->addStretch();
}

QString ColourPanel::schemeName() const {
    return m_schemeLabel->text();
}

void ColourPanel::setSchemeName(const QString& name) {
    m_schemeLabel->setText(name);
}

void ColourPanel::choose(const QString& name) {
    setSchemeName(name);
    hide();
    emit schemeChosen(name);
}

} // namespace quenfor
