#include "ui/desktools/colourboxwindow.h"

#include "ui/widgets/dialogs.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/qtclipboard.h"
#include "ui/widgets/statushints.h"

#include <QColorDialog>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr ColourChannel kChannels[kColourChannels] = {ColourChannel::Red, ColourChannel::Green, ColourChannel::Blue};
const QString kFieldSuffix[kColourChannels] = {u"Rot"_s, u"Gruen"_s, u"Blau"_s};

} // namespace

ColourBoxWindow::ColourBoxWindow(MarkedLine markedLine, QWidget* parent)
    : QWidget(parent, Qt::Window), m_markedLine(std::move(markedLine)) {
    setObjectName(u"frmColor"_s);
    setWindowTitle(tr("Pro/E Farb-Box"));
    buildWidgets();
    setColour(Qt::black);
    // A colour line marked in the main window is what the user most likely wants to see.
    if (m_markedLine) {
        if (const std::optional<QString> line = m_markedLine(); line && parseSclColourLine(*line))
            takeLine(*line);
    }
}

void ColourBoxWindow::buildWidgets() {
    m_status = makeStatusLine(this, u"lblstatus"_s);
    m_hints = new StatusHints(m_status, this);

    m_name = new QComboBox(this);
    m_name->setObjectName(u"cmb_name"_s);
    m_name->setEditable(true);
    m_name->addItem(QString());
    m_name->addItems(knownColourNames());
    m_name->setInsertPolicy(QComboBox::NoInsert);
    m_name->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_hints->add(m_name, tr("Name der Farbe in der Farbdatei; leer: nur die drei Werte"));
    connect(m_name, &QComboBox::currentTextChanged, this, &ColourBoxWindow::showColour);

    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("Name"), this), 0, 0);
    grid->addWidget(m_name, 0, 1, 1, 3);
    grid->addWidget(boldLabel(tr("Pro/E (%)"), this), 1, 1);
    grid->addWidget(boldLabel(tr("RGB (0–255)"), this), 1, 2);
    for (int i = 0; i < kColourChannels; ++i) {
        m_percentFields[i] = numberField(u"txt_prozent"_s + kFieldSuffix[i], this, 10);
        m_hints->add(m_percentFields[i], tr("Anteil in Prozent, 0 bis 100, wie in der Farbdatei"));
        connect(m_percentFields[i], &QLineEdit::textEdited, this, [this, i] { percentEdited(i); });
        m_rgbFields[i] = numberField(u"txt_rgb"_s + kFieldSuffix[i], this, 4);
        m_hints->add(m_rgbFields[i], tr("RGB-Wert, ganze Zahl von 0 bis 255"));
        connect(m_rgbFields[i], &QLineEdit::textEdited, this, [this, i] { rgbEdited(i); });
        grid->addWidget(new QLabel(channelName(kChannels[i]), this), i + 2, 0);
        grid->addWidget(m_percentFields[i], i + 2, 1);
        grid->addWidget(m_rgbFields[i], i + 2, 2);
    }

    m_swatch = new QLabel(this);
    m_swatch->setObjectName(u"lbl_farbe"_s);
    m_swatch->setFrameShape(QFrame::Box);
    m_swatch->setAutoFillBackground(true);
    m_swatch->setMinimumSize(96, 96);
    grid->addWidget(m_swatch, 1, 3, 4, 1);
    grid->setColumnStretch(4, 1);

    auto* choose = namedButton(u"cmd_farbwahl"_s, tr("Farbe wählen..."), this);
    m_hints->add(choose, tr("Farbe im Farbauswahl-Dialog wählen"));
    connect(choose, &QPushButton::clicked, this, &ColourBoxWindow::chooseColour);
    auto* take = namedButton(u"cmd_zeile"_s, tr("markierte Zeile übernehmen"), this);
    take->setEnabled(bool(m_markedLine));
    m_hints->add(take, tr("übernimmt die im Hauptfenster markierte Farbzeile"));
    connect(take, &QPushButton::clicked, this, &ColourBoxWindow::takeMarkedLine);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(choose);
    buttons->addWidget(take);
    buttons->addStretch(1);

    m_line = new QLineEdit(this);
    m_line->setObjectName(u"txt_zeile"_s);
    m_line->setReadOnly(true);
    m_hints->add(m_line, tr("die Zeile für die Farbdatei (.scl)"));
    auto* copy = namedButton(u"cmd_kopieren"_s, tr("Kopieren"), this);
    m_hints->add(copy, tr("Kopieren in die Zwischenablage"));
    connect(copy, &QPushButton::clicked, this, &ColourBoxWindow::copyLine);
    auto* lineRow = new QHBoxLayout;
    lineRow->addWidget(new QLabel(tr("Zeile"), this));
    lineRow->addWidget(m_line, 1);
    lineRow->addWidget(copy);

    auto* exit = namedButton(u"cmd_exit"_s, tr("Schließen"), this);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);
    layout->addLayout(lineRow);
    layout->addStretch(1);
    layout->addLayout(statusRow(m_status, exit));
    resize(fontMetrics().horizontalAdvance(u"SYSTEM_SECONDARY_SELECTED_COLOR 100.000000 100.000000 100.000000"_s) + 160,
           sizeHint().height());
}

QColor ColourBoxWindow::colour() const {
    return QColor(percentToRgb(m_percent[0]), percentToRgb(m_percent[1]), percentToRgb(m_percent[2]));
}

QString ColourBoxWindow::valueLine() const {
    return sclColourLine(m_name->currentText(), m_percent);
}

void ColourBoxWindow::setColour(const QColor& colour) {
    const int rgb[kColourChannels] = {colour.red(), colour.green(), colour.blue()};
    for (int i = 0; i < kColourChannels; ++i) {
        m_percent[i] = rgbToPercent(rgb[i]);
        m_refusals[i].clear();
        m_rgbFields[i]->setText(QString::number(rgb[i]));
        m_percentFields[i]->setText(percentFieldText(m_percent[i]));
    }
    showColour();
}

bool ColourBoxWindow::takeLine(const QString& line) {
    const std::optional<SclColourLine> colourLine = parseSclColourLine(line);
    if (!colourLine) {
        m_status->setText(colourLineRefusal(line));
        return false;
    }
    m_name->setCurrentText(colourLine->name);
    for (int i = 0; i < kColourChannels; ++i) {
        m_percent[i] = colourLine->percent[i];
        m_refusals[i].clear();
        m_percentFields[i]->setText(percentFieldText(m_percent[i]));
        m_rgbFields[i]->setText(QString::number(percentToRgb(m_percent[i])));
    }
    showColour();
    return true;
}

void ColourBoxWindow::takeMarkedLine() {
    const std::optional<QString> line = m_markedLine ? m_markedLine() : std::nullopt;
    const QString refusal = colourLineRefusal(line);
    if (!refusal.isEmpty()) {
        Dialogs::information(this, refusal);
        return;
    }
    takeLine(*line);
}

void ColourBoxWindow::chooseColour() {
    const QColor chosen = QColorDialog::getColor(colour(), this, tr("Farbe wählen"));
    if (chosen.isValid())
        setColour(chosen);
}

void ColourBoxWindow::percentEdited(int channel) {
    const ChannelValue value = parsePercent(kChannels[channel], m_percentFields[channel]->text());
    m_refusals[channel] = value.error;
    if (value.value) {
        m_percent[channel] = *value.value;
        m_rgbFields[channel]->setText(QString::number(percentToRgb(*value.value)));
    }
    showColour();
}

void ColourBoxWindow::rgbEdited(int channel) {
    const ChannelValue value = parseRgb(kChannels[channel], m_rgbFields[channel]->text());
    m_refusals[channel] = value.error;
    if (value.value) {
        m_percent[channel] = rgbToPercent(int(*value.value));
        m_percentFields[channel]->setText(percentFieldText(m_percent[channel]));
    }
    showColour();
}

void ColourBoxWindow::showColour() {
    // While a field holds a value that was refused, neither the swatch nor the line may show an
    // older value as if it were the one typed: both stay empty until the fields agree again.
    const bool refused = std::any_of(std::begin(m_refusals), std::end(m_refusals),
                                     [](const QString& refusal) { return !refusal.isEmpty(); });
    QPalette palette = m_swatch->palette();
    palette.setColor(QPalette::Window, refused ? QWidget::palette().color(QPalette::Window) : colour());
    m_swatch->setPalette(palette);
    for (int i = 0; i < kColourChannels; ++i) {
        showRed(m_percentFields[i], !m_refusals[i].isEmpty());
        showRed(m_rgbFields[i], !m_refusals[i].isEmpty());
    }
    m_line->setText(refused ? QString() : valueLine());
    m_status->setText(firstRefusal());
}

QString ColourBoxWindow::firstRefusal() const {
    for (const QString& refusal : m_refusals) {
        if (!refusal.isEmpty())
            return refusal;
    }
    return checkColourName(m_name->currentText());
}

bool ColourBoxWindow::copyLine() {
    const QString refusal = firstRefusal();
    if (!refusal.isEmpty()) {
        Dialogs::information(this, refusal);
        return false;
    }
    QtClipboard().setText(valueLine());
    m_status->setText(tr("In der Zwischenablage: %1").arg(valueLine()));
    return true;
}

} // namespace quenfor
