#include "ui/main/toolcolumn.h"

#include "lint/linttexts.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

struct ButtonDefinition {
    const char16_t* objectName;
    const char16_t* face; // a glyph or a short word on the button
};

// In groups: placing lines, moving and the clipboard, the clean-up tools, files and program.
const std::initializer_list<ButtonDefinition> kGroups[] = {
    {{u"Image9", u"+"},
     {u"img_comment", u"!"},
     {u"Image8", u"✗"},
     {u"cmd_delAll", u"∅"},
     {u"cmd_undo", u"↶"},
     {u"cmd_redo", u"↷"}},
    {{u"img_up", u"↑"}, {u"ontop", u"⇈"}, {u"copy", u"❐"}, {u"cut", u"✂"}, {u"paste", u"▤"}},
    {{u"img_Leerzeilen", u"¶"}, {u"img_doppelte", u"=="}, {u"img_alphabet", u"AZ"}, {u"img_grossklein", u"Aa"}},
    {{u"img_vorschlag", u"★"}, {u"img_dmapkeys", u"⌨="}, {u"cmd_listmapkeys", u"⌨"}, {u"cmd_pruefen", u"✓"}},
    {{u"img_save", u""},
     {u"cmd_last", u"↺"},
     {u"cmd_Textedi", u"✎"},
     {u"imgPurge", u"♻"},
     {u"img_zoom_all", u"⤢"},
     {u"Image10", u"i"},
     {u"cmd_RegDelTree", u"⟲"}},
};

} // namespace

ToolColumn::ToolColumn(QWidget* parent) : QWidget(parent) {
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(3);
    int row = 0;
    for (const auto& group : kGroups) {
        int column = 0;
        for (const ButtonDefinition& def : group) {
            auto* button = new QToolButton(this);
            button->setObjectName(QString::fromUtf16(def.objectName));
            button->setText(QString::fromUtf16(def.face));
            if (button->text().isEmpty()) // no glyph says "save" as well as the style's disk
                button->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
            button->setFixedSize(34, 30);
            button->setAutoRaise(false);
            m_buttons.insert(button->objectName(), button);
            layout->addWidget(button, row, column);
            if (++column == 2) {
                column = 0;
                ++row;
            }
        }
        if (column != 0)
            ++row;
        auto* gap = new QFrame(this);
        gap->setFrameShape(QFrame::HLine);
        gap->setFrameShadow(QFrame::Sunken);
        layout->addWidget(gap, row++, 0, 1, 2);
    }
    layout->setRowStretch(row, 1);
}

ContextMenuPanel::ContextMenuPanel(QWidget* parent) : QWidget(parent) {
    setObjectName(u"kontextmenue"_s);
    setAutoFillBackground(true);
    auto* frame = new QFrame(this);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setFrameShadow(QFrame::Raised);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(2);
    const ButtonDefinition entries[] = {
        {u"cmd_cut", u"Ausschneiden"},
        {u"cmd_copy", u"Kopieren"},
        {u"cmd_paste", u"Einfügen"},
        {u"cmd_delete", u"Löschen"},
        {u"cmd_blanklines", u"Leerzeilen löschen"},
        {u"cmd_refresh", u"Markierungen aufheben"},
        {u"cmd_kontext_pruefen", kLintCaption},
        {u"cmd_quit", u"Ausblenden"},
    };
    for (const ButtonDefinition& def : entries) {
        auto* button = new QPushButton(QString::fromUtf16(def.face), frame);
        button->setObjectName(QString::fromUtf16(def.objectName));
        button->setFlat(true);
        button->setStyleSheet(u"text-align: left; padding: 3px 10px;"_s);
        m_buttons.insert(button->objectName(), button);
        layout->addWidget(button);
    }
    adjustSize();
    hide();
}

} // namespace quenfor
