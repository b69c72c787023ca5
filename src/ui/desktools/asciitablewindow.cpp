#include "ui/desktools/asciitablewindow.h"

#include "settings/mainsettings.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/qtclipboard.h"
#include "ui/widgets/statushints.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kCodeRole = Qt::UserRole;

// Characters without a picture of their own show their short name in the list; the fields get
// the character itself.
QString shortName(const QString& character) {
    static const char16_t* const kControlNames[] = {u"NUL", u"SOH", u"STX", u"ETX", u"EOT", u"ENQ", u"ACK", u"BEL",
                                                    u"BS",  u"HT",  u"LF",  u"VT",  u"FF",  u"CR",  u"SO",  u"SI",
                                                    u"DLE", u"DC1", u"DC2", u"DC3", u"DC4", u"NAK", u"SYN", u"ETB",
                                                    u"CAN", u"EM",  u"SUB", u"ESC", u"FS",  u"GS",  u"RS",  u"US"};
    if (character.isEmpty())
        return u"–"_s;
    const QChar c = character.at(0);
    if (c.unicode() < 0x20)
        return QString::fromUtf16(kControlNames[c.unicode()]);
    switch (c.unicode()) {
    case 0x20:
        return u"SP"_s;
    case 0x7F:
        return u"DEL"_s;
    case 0xA0:
        return u"NBSP"_s;
    case 0xAD:
        return u"SHY"_s;
    default:
        break;
    }
    if (!c.isPrint())
        return u"·"_s;
    return {};
}

} // namespace

AsciiTableWindow::AsciiTableWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(u"frmAscii"_s);
    setWindowTitle(tr("ASCII Codes"));
    QString note;
    m_table = CodePageTable::load(settingValue(Setting::Codepage), &note);
    buildWidgets();
    fillList();
    m_character->setFocus();
    m_status->setText(note);
}

void AsciiTableWindow::buildWidgets() {
    m_status = makeStatusLine(this, u"lblstatus"_s);
    m_hints = new StatusHints(m_status, this);

    m_list = new QListWidget(this);
    m_list->setObjectName(u"List2"_s);
    m_list->setViewMode(QListView::IconMode);
    m_list->setMovement(QListView::Static);
    m_list->setResizeMode(QListView::Adjust);
    QFont listFont = m_list->font();
    listFont.setPointSizeF(listFont.pointSizeF() * 1.4);
    m_list->setFont(listFont);
    // Short names of invisible characters in a smaller font, so that "NBSP" fits a cell.
    m_nameFont = m_list->font();
    m_nameFont.setPointSizeF(font().pointSizeF() * 0.9);
    const int cellWidth = QFontMetrics(m_nameFont).horizontalAdvance(u"NBSP"_s) + 16;
    const int cellHeight = QFontMetrics(listFont).height() * 3 / 2;
    m_list->setGridSize(QSize(cellWidth, cellHeight));
    m_list->setMinimumSize(16 * cellWidth + 2 * m_list->frameWidth() + 24, 10 * cellHeight);
    m_hints->add(m_list, tr("Zeichen anklicken: Zeichen und Code werden übernommen"));
    // Clicks and the arrow keys pick; the list getting the focus alone does not.
    connect(m_list, &QListWidget::itemClicked, this, &AsciiTableWindow::pickItem);
    connect(m_list, &QListWidget::currentItemChanged, this, [this] {
        if (m_list->hasFocus())
            pickItem();
    });

    m_character = numberField(u"Text1"_s, this, 6);
    QFont big = m_character->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    m_character->setFont(big);
    m_hints->add(m_character, tr("ein Zeichen"));
    connect(m_character, &QLineEdit::textEdited, this, [this](const QString& text) {
        const QString first = firstCharacter(text);
        if (first != text)
            m_character->setText(first);
    });
    connect(m_character, &QLineEdit::returnPressed, this, &AsciiTableWindow::characterToCode);
    m_code = numberField(u"Text2"_s, this, 6);
    m_code->setFont(big);
    m_hints->add(m_code, tr("der Code des Zeichens (1 bis 254)"));
    connect(m_code, &QLineEdit::textEdited, this, &AsciiTableWindow::selectCode);
    connect(m_code, &QLineEdit::returnPressed, this, &AsciiTableWindow::codeToCharacter);

    auto* toCode = namedButton(u"Command1"_s, tr("Zeichen → Code"), this);
    connect(toCode, &QPushButton::clicked, this, &AsciiTableWindow::characterToCode);
    auto* toCharacter = namedButton(u"Command2"_s, tr("Code → Zeichen"), this);
    connect(toCharacter, &QPushButton::clicked, this, &AsciiTableWindow::codeToCharacter);
    auto* down = namedButton(u"cmd_down"_s, tr("−"), this);
    m_hints->add(down, tr("Code um 1 verringern"));
    connect(down, &QPushButton::clicked, this, &AsciiTableWindow::stepDown);
    auto* up = namedButton(u"cmd_up"_s, tr("+"), this);
    m_hints->add(up, tr("Code um 1 erhöhen"));
    connect(up, &QPushButton::clicked, this, &AsciiTableWindow::stepUp);
    auto* copy = namedButton(u"Command3"_s, tr("Zeichen kopieren"), this);
    m_hints->add(copy, tr("Kopieren in die Zwischenablage"));
    connect(copy, &QPushButton::clicked, this, &AsciiTableWindow::copyCharacter);
    auto* codepage = new QLabel(tr("Codepage: %1").arg(m_table.name()), this);
    codepage->setObjectName(u"lbl_codepage"_s);

    for (QPushButton* step : {down, up})
        step->setFixedWidth(m_code->width() / 2 - 2);
    auto* steps = new QHBoxLayout;
    steps->setSpacing(4);
    steps->addWidget(down);
    steps->addWidget(up);
    auto* fields = new QGridLayout;
    fields->addWidget(new QLabel(tr("Zeichen"), this), 0, 0);
    fields->addWidget(m_character, 0, 1);
    fields->addWidget(toCode, 0, 2);
    fields->addWidget(new QLabel(tr("Code"), this), 1, 0);
    fields->addWidget(m_code, 1, 1);
    fields->addWidget(toCharacter, 1, 2);
    fields->addLayout(steps, 2, 1);
    fields->addWidget(copy, 2, 2);
    fields->setRowStretch(3, 1);
    fields->addWidget(codepage, 4, 0, 1, 3);

    auto* exit = namedButton(u"EXIT"_s, tr("EXIT"), this);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);

    auto* columns = new QHBoxLayout;
    columns->addWidget(m_list, 1);
    columns->addLayout(fields);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addLayout(statusRow(m_status, exit));
}

void AsciiTableWindow::fillList() {
    for (int code = 1; code <= 255; ++code) {
        const QString character = m_table.characterOf(code);
        const QString name = shortName(character);
        auto* item = new QListWidgetItem(name.isEmpty() ? character : name, m_list);
        if (!name.isEmpty())
            item->setFont(m_nameFont);
        item->setData(kCodeRole, code);
        item->setTextAlignment(Qt::AlignCenter);
        item->setToolTip(character.isEmpty() ? tr("Code %1: nicht belegt").arg(code) : tr("Code %1").arg(code));
        if (character.isEmpty())
            item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
    }
}

void AsciiTableWindow::apply(const AsciiUpdate& update) {
    if (update.character)
        m_character->setText(*update.character);
    if (update.code)
        m_code->setText(*update.code);
    selectCode(m_code->text());
    m_status->setText(update.message);
    if (!update.message.isEmpty())
        Dialogs::information(this, update.message);
}

void AsciiTableWindow::selectCode(const QString& code) {
    const QScopedValueRollback<bool> guard(m_selecting, true);
    bool ok = false;
    const int value = code.trimmed().toInt(&ok);
    if (ok && value >= 1 && value <= 255) {
        m_list->setCurrentRow(value - 1);
        m_list->scrollToItem(m_list->currentItem());
    } else {
        m_list->setCurrentRow(-1);
    }
}

void AsciiTableWindow::pickItem() {
    if (m_selecting || !m_list->currentItem())
        return;
    const int code = m_list->currentItem()->data(kCodeRole).toInt();
    m_character->setText(m_table.characterOf(code));
    m_code->setText(QString::number(code));
    m_status->clear();
}

void AsciiTableWindow::characterToCode() {
    apply(quenfor::characterToCode(m_table, m_character->text()));
}

void AsciiTableWindow::codeToCharacter() {
    apply(quenfor::codeToCharacter(m_table, m_code->text()));
}

void AsciiTableWindow::stepDown() {
    apply(stepCode(m_table, m_code->text(), -1));
}

void AsciiTableWindow::stepUp() {
    apply(stepCode(m_table, m_code->text(), 1));
}

void AsciiTableWindow::copyCharacter() {
    QtClipboard().setText(m_character->text());
    m_status->setText(m_character->text().isEmpty() ? tr("Die Zwischenablage ist geleert.")
                                                    : tr("Das Zeichen ist in der Zwischenablage."));
}

} // namespace quenfor
