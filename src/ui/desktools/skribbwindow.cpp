#include "ui/desktools/skribbwindow.h"

#include "desktools/caretposition.h"
#include "desktools/skribbcommands.h"
#include "desktools/skribbsettings.h"
#include "desktools/texthandback.h"
#include "desktools/translationrequest.h"
#include "settings/colourschemes.h"
#include "ui/desktools/linetranslator.h"
#include "ui/desktools/skribbfilebox.h"
#include "ui/main/colourpanel.h"
#include "ui/widgets/bearpicture.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/statushints.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

constexpr int kIconSize = 24;

// A glyph drawn as an icon, for the buttons the style has no picture for.
QIcon glyphIcon(const QString& glyph, const QPalette& palette) {
    QPixmap pixmap(kIconSize * 2, kIconSize * 2);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QFont font = painter.font();
    font.setPixelSize(kIconSize * 3 / 2);
    painter.setFont(font);
    painter.setPen(palette.color(QPalette::ButtonText));
    painter.drawText(pixmap.rect(), Qt::AlignCenter, glyph);
    return QIcon(pixmap);
}

// An image button with its caption beneath it.
QToolButton* imageButton(const QString& name, const QIcon& icon, const QString& caption, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setIcon(icon);
    button->setIconSize(QSize(kIconSize, kIconSize));
    button->setText(caption);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAutoRaise(true);
    // Never narrower than its caption: a squeezed row would cut captions short.
    button->setMinimumWidth(button->fontMetrics().horizontalAdvance(caption + u"  "_s) + 8);
    return button;
}

} // namespace

SkribbWindow::SkribbWindow(const QString& text, const TextEncoding& encoding, QWidget* parent)
    : QWidget(parent, Qt::Window), m_encoding(encoding), m_translator(new LineTranslator(this)) {
    setObjectName(u"Skribb"_s);
    setWindowTitle(u"quenfor Text-Editor"_s);
    buildWidgets();
    restoreSettings();
    setText(text);
    refresh();
    connect(m_translator, &LineTranslator::lineTranslated, this, &SkribbWindow::lineTranslated);
    connect(m_translator, &LineTranslator::finished, this, &SkribbWindow::finishTranslation);
    resize(960, 660);
    m_text->setFocus();
}

SkribbWindow::~SkribbWindow() {
    // A request still open must not report into a window that is going away.
    disconnect(m_translator, nullptr, this, nullptr);
}

void SkribbWindow::buildWidgets() {
    m_status = new QLineEdit(this);
    m_status->setObjectName(u"lblstatus"_s);
    m_status->setClearButtonEnabled(true);
    m_status->setPlaceholderText(tr("Statuszeile – Befehle: help, dos, autor, exit"));
    connect(m_status, &QLineEdit::returnPressed, this, [this] { runCommand(m_status->text()); });
    m_hints = new StatusHints(m_status, this);

    m_fileLabel = new QLabel(this);
    m_fileLabel->setObjectName(u"Label1"_s);
    m_fileLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_fileLabel->setMinimumWidth(100);

    // The text fills its area; the file boxes and the colour frame float over it.
    m_textArea = new QWidget(this);
    m_text = new QPlainTextEdit(m_textArea);
    m_text->setObjectName(u"TextBox1"_s);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->installEventFilter(this);
    m_text->viewport()->installEventFilter(this);
    auto* areaLayout = new QVBoxLayout(m_textArea);
    areaLayout->setContentsMargins(0, 0, 0, 0);
    areaLayout->addWidget(m_text);
    m_textArea->installEventFilter(this);

    m_openBox = new SkribbFileBox(SkribbFileBox::Mode::Open, m_textArea);
    connect(m_openBox, &SkribbFileBox::loadRequested, this, &SkribbWindow::loadChosen);
    connect(m_openBox, &SkribbFileBox::folderChanged, this, &SkribbWindow::rememberFolder);
    m_saveAsBox = new SkribbFileBox(SkribbFileBox::Mode::SaveAs, m_textArea);
    connect(m_saveAsBox, &SkribbFileBox::saveAsRequested, this, &SkribbWindow::saveAs);
    connect(m_saveAsBox, &SkribbFileBox::folderChanged, this, &SkribbWindow::rememberFolder);
    m_colourFrame = buildColourFrame();

    m_progress = new QProgressBar(this);
    m_progress->setObjectName(u"prgTranslate"_s);
    m_progress->setFormat(tr("Zeile %v von %m"));
    m_cancel = new QPushButton(tr("Abbrechen"), this);
    m_cancel->setObjectName(u"cmdCancelTranslate"_s);
    m_cancel->setAutoDefault(false);
    connect(m_cancel, &QPushButton::clicked, this, &SkribbWindow::cancelTranslation);
    m_progressRow = new QWidget(this);
    auto* progressLayout = new QHBoxLayout(m_progressRow);
    progressLayout->setContentsMargins(0, 0, 0, 0);
    progressLayout->addWidget(new QLabel(tr("Übersetzung:"), m_progressRow));
    progressLayout->addWidget(m_progress, 1);
    progressLayout->addWidget(m_cancel);
    m_progressRow->hide();

    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(new QLabel(tr("Datei:"), this));
    fileRow->addWidget(m_fileLabel, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildToolRow());
    layout->addLayout(fileRow);
    layout->addWidget(m_textArea, 1);
    layout->addWidget(m_progressRow);
    layout->addWidget(m_status);
}

QWidget* SkribbWindow::buildToolRow() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    const QPalette& colours = palette();
    QStyle* look = style();

    struct Definition {
        QString name;
        QIcon icon;
        QString caption;
        QString hint;
        std::function<void()> action;
    };
    const Definition buttons[] = {
        {u"cmd_open"_s, look->standardIcon(QStyle::SP_DialogOpenButton), tr("öffnen"),
         u"öffnet den Dateiauswahl Dialog / Die Box kann mit der rechten Maustaste bewegt werden"_s,
         [this] { showOpenBox(); }},
        {u"img_save"_s, look->standardIcon(QStyle::SP_DialogSaveButton), tr("speichern"), u"speichern"_s,
         [this] { save(); }},
        {u"Save_AS"_s, glyphIcon(u"✍"_s, colours), tr("speichern als"),
         u"speichern als / Die Box kann mit der rechten Maustaste bewegt werden"_s, [this] { showSaveAsBox(); }},
        {u"img_clear"_s, glyphIcon(u"✕"_s, colours), tr("clear"),
         u"Vorsicht ! Löscht den Inhalt des Editorfensters !"_s, [this] { clearText(); }},
        {u"copy"_s, glyphIcon(u"❐"_s, colours), tr("copy all"),
         u"copy /markierten Text in die Zwischenablage kopieren"_s, [this] { copyText(); }},
        {u"cmd_fresh"_s, look->standardIcon(QStyle::SP_BrowserReload), tr("refresh"), u"refresh"_s,
         [this] { refresh(); }},
        {u"Print"_s, look->standardIcon(QStyle::SP_FileIcon), tr("drucken"), u"Ausdruck auf den Standarddrucker"_s,
         [this] { print(); }},
    };
    for (const Definition& def : buttons) {
        QToolButton* button = imageButton(def.name, def.icon, def.caption, row);
        connect(button, &QToolButton::clicked, this, def.action);
        m_hints->add(button, def.hint);
        layout->addWidget(button);
    }

    // Its caption reads "QUIT" while the colour frame is open.
    m_settingsButton = imageButton(u"cmd_Einstell"_s, glyphIcon(u"◐"_s, colours), tr("Farben"), row);
    connect(m_settingsButton, &QToolButton::clicked, this, &SkribbWindow::toggleColourFrame);
    m_hints->add(m_settingsButton, u"Programm- Optionen /Farben /Highlightlisten"_s);
    layout->addWidget(m_settingsButton);
    layout->addSpacing(8);

    QToolButton* bear =
        imageButton(u"ImgErklaerBaer"_s, QIcon(bearPicture(BearPose::Explaining, 48)), tr("Erklär-Bär"), row);
    connect(bear, &QToolButton::clicked, this, &SkribbWindow::toggleExplain);
    m_hints->add(bear, u"Erklärt Begriffe anhand einer Textdatei mit Namen config_opts.txt die im "
                       u"Programmverzeichnis liegen muss"_s);
    layout->addWidget(bear);
    m_explain = new QCheckBox(tr("Zeile immer erklären"), row);
    m_explain->setObjectName(u"chkErklaer"_s);
    connect(m_explain, &QCheckBox::toggled, this, [this](bool on) {
        if (on)
            explainCurrentLine();
    });

    auto* translateLabel = new QLabel(tr("Translate"), row);
    m_direction = new QComboBox(row);
    m_direction->setObjectName(u"Combo1"_s);
    m_direction->addItems(translationDirectionNames());
    m_direction->setPlaceholderText(tr("Richtung wählen"));
    m_direction->setCurrentIndex(-1);
    translateLabel->setBuddy(m_direction);
    connect(m_direction, &QComboBox::activated, this, [this](int index) { translate(m_direction->itemText(index)); });
    // The check box above the translation, to keep the row short.
    auto* translateRow = new QHBoxLayout;
    translateRow->addWidget(translateLabel);
    translateRow->addWidget(m_direction, 1);
    auto* optionsColumn = new QVBoxLayout;
    optionsColumn->addStretch();
    optionsColumn->addWidget(m_explain);
    optionsColumn->addLayout(translateRow);
    optionsColumn->addStretch();
    layout->addLayout(optionsColumn);
    layout->addStretch();

    QToolButton* info = imageButton(u"Info1"_s, look->standardIcon(QStyle::SP_MessageBoxInformation), tr("info"), row);
    connect(info, &QToolButton::clicked, this, [this] { Dialogs::information(this, skribbAboutText()); });
    m_hints->add(info, u"Informationen über das Programm und den Autor"_s);
    layout->addWidget(info);
    QToolButton* help = imageButton(u"Info2"_s, look->standardIcon(QStyle::SP_DialogHelpButton), tr("hilfe"), row);
    connect(help, &QToolButton::clicked, this, &SkribbWindow::openHelpPage);
    layout->addWidget(help);
    QToolButton* exit = imageButton(u"EXIT"_s, look->standardIcon(QStyle::SP_DialogCloseButton), tr("exit"), row);
    connect(exit, &QToolButton::clicked, this, &QWidget::close);
    m_hints->add(exit, u"Text-Editor verlassen"_s);
    layout->addWidget(exit);
    return row;
}

QFrame* SkribbWindow::buildColourFrame() {
    auto* frame = new QFrame(m_textArea);
    frame->setObjectName(u"Optionen"_s);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setFrameShadow(QFrame::Raised);
    frame->setLineWidth(2);
    frame->setAutoFillBackground(true);

    auto* title = new QLabel(tr("Optionen und Einstellungen"), frame);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto* close = new QToolButton(frame);
    close->setObjectName(u"LblExit"_s);
    close->setText(tr("X"));
    close->setAutoRaise(true);
    connect(close, &QToolButton::clicked, this, &SkribbWindow::toggleColourFrame);
    auto* header = new QHBoxLayout;
    header->addWidget(title);
    header->addStretch();
    header->addWidget(close);

    m_colourLabel = new QLabel(frame);
    m_colourLabel->setObjectName(u"lbl_schwarzweissblau"_s);
    m_colourLabel->hide();
    auto* swatches = new QHBoxLayout;
    swatches->addWidget(new QLabel(tr("Hintergrundfarbe :"), frame));
    for (const QString& word : colourSchemeNames()) {
        QPushButton* swatch = makeColourSwatch(*colourScheme(word), frame);
        connect(swatch, &QPushButton::clicked, this, [this, word] { chooseColour(word); });
        swatches->addWidget(swatch);
    }

    auto* layout = new QVBoxLayout(frame);
    layout->addLayout(header);
    layout->addWidget(new QLabel(tr("Farb Einstellungen"), frame));
    layout->addLayout(swatches);
    frame->adjustSize();
    frame->hide();
    return frame;
}

void SkribbWindow::restoreSettings() {
    const SkribbSettings settings = loadSkribbSettings();
    m_openBox->setPattern(settings.filter);
    m_folder = settings.folder;
    m_drive = settings.drive;
    for (SkribbFileBox* box : {m_openBox, m_saveAsBox}) {
        if (!box->setFolder(settings.folder) && !box->setFolder(settings.drive))
            box->setFolder(QDir::homePath());
    }
    // Ticked from the store, not by the user: nothing to explain yet.
    const QSignalBlocker quiet(m_explain);
    m_explain->setChecked(settings.explain);
    m_colourWord = settings.colourWord;
    m_colourLabel->setText(m_colourWord);
}

void SkribbWindow::storeSettings() {
    storeSkribbSettings({m_folder, m_drive, m_openBox->pattern(), m_explain->isChecked(), m_colourLabel->text()});
}

void SkribbWindow::closeEvent(QCloseEvent* event) {
    if (isTranslating())
        cancelTranslation();
    storeSettings();
    if (!m_text->document()->isEmpty() &&
        Dialogs::question(this, handBackQuestion(m_fileLabel->text())) == Dialogs::Answer::Yes) {
        const HandBack back = handBackThroughFile(text(), editorTempFolder());
        if (!back.problem.isEmpty())
            Dialogs::information(this, back.problem);
        emit linesHandedBack(back.lines);
    }
    QWidget::closeEvent(event);
}

bool SkribbWindow::eventFilter(QObject* watched, QEvent* event) {
    // Line and column after every key and click, as the status line always showed them.
    // (A running translation keeps its own status.)
    if (((watched == m_text && event->type() == QEvent::KeyRelease) ||
         (watched == m_text->viewport() && event->type() == QEvent::MouseButtonRelease)) &&
        !isTranslating())
        showCaretPlace();
    // The floating boxes stay inside a text area that became smaller.
    if (watched == m_textArea && event->type() == QEvent::Resize) {
        for (QWidget* box : std::initializer_list<QWidget*>{m_openBox, m_saveAsBox, m_colourFrame}) {
            box->move(std::clamp(box->x(), 0, std::max(0, m_textArea->width() - box->width())),
                      std::clamp(box->y(), 0, std::max(0, m_textArea->height() - box->height())));
        }
    }
    return QWidget::eventFilter(watched, event);
}

QString SkribbWindow::text() const {
    // The raw text keeps no-break spaces, which the plain text would turn into blanks. Shift+Enter
    // makes a line separator inside a paragraph: in a file it is a line end like any other.
    return m_text->document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u"\r\n"_s)
        .replace(QChar::LineSeparator, u"\r\n"_s);
}

void SkribbWindow::setText(const QString& text) {
    m_text->setPlainText(text);
}

QString SkribbWindow::fileName() const {
    return m_fileLabel->text();
}

QString SkribbWindow::status() const {
    return m_status->text();
}

void SkribbWindow::setStatus(const QString& text) {
    m_status->setText(text);
    m_status->setCursorPosition(0);
}

QString SkribbWindow::currentLine() const {
    return m_text->textCursor().block().text();
}

void SkribbWindow::showCaretPlace() {
    const QTextCursor cursor = m_text->textCursor();
    setStatus(lineColumnText({cursor.blockNumber() + 1, cursor.positionInBlock() + 1}));
    if (m_explain->isChecked())
        explainCurrentLine();
}

QPoint SkribbWindow::boxPlace(const QWidget* box, bool right) const {
    const int x = right ? m_textArea->width() - box->width() - 24 : 24;
    return {std::max(0, x), 16};
}

} // namespace quenfor
