#include "ui/main/entrylinepanel.h"

#include "document/entrylinecheck.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace quenfor {

QColor colorFromBgr(int bgr) {
    return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

int twipsToPixels(int twips) {
    return twips / 15;
}

// Leaves room for the tool column and the picker on a 1366 pixel wide laptop screen.
constexpr int kWidestEntryLine = 700;

EntryLinePanel::EntryLinePanel(QWidget* parent)
    : QWidget(parent), m_entry(new QLineEdit(this)), m_warning(new QLabel(this)), m_preview(new QLabel(this)),
      m_favoriteCheck(new QLabel(this)), m_row(new QHBoxLayout) {
    m_entry->setObjectName(QStringLiteral("Text1"));
    // Qt cuts at 32,767 characters by default; a line of the document may be far longer.
    m_entry->setMaxLength(std::numeric_limits<int>::max());
    m_warning->setObjectName(QStringLiteral("lbl_warn"));
    m_preview->setObjectName(QStringLiteral("lblvorschau"));
    m_favoriteCheck->setObjectName(QStringLiteral("img_favocheck"));

    m_entry->setMinimumWidth(twipsToPixels(EntryLineCheck::kNormalWidthTwips));
    m_entry->setFont(QFont(QStringLiteral("Monospace")));
    m_warning->setStyleSheet(QStringLiteral("color: #c00000; font-weight: bold;"));
    m_warning->setCursor(Qt::PointingHandCursor);
    m_warning->hide();
    m_warning->installEventFilter(this);
    m_preview->setTextFormat(Qt::PlainText);
    // A mapkey's preview can be hundreds of characters long: it must not widen the window beyond
    // the screen. It is cut at the window's edge, and the whole text shows as its tooltip.
    m_preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_preview->setMinimumWidth(0);
    m_favoriteCheck->setText(u"☆"_s);
    m_favoriteCheck->setCursor(Qt::PointingHandCursor);
    m_favoriteCheck->installEventFilter(this);

    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->addWidget(m_entry, 1);
    m_row->addWidget(m_favoriteCheck);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(m_row);
    layout->addWidget(m_warning);
    layout->addWidget(m_preview);

    connect(m_entry, &QLineEdit::textChanged, this, &EntryLinePanel::textEdited);
    connect(m_entry, &QLineEdit::returnPressed, this, &EntryLinePanel::returnPressed);
}

QString EntryLinePanel::text() const {
    return m_entry->text();
}

void EntryLinePanel::setText(const QString& text) {
    m_entry->setText(text);
}

void EntryLinePanel::showCheck(const EntryLineCheck& check) {
    // The wide entry line for long text is as wide as the screen allows, never wider: the line
    // scrolls within it.
    m_entry->setMinimumWidth(std::min(twipsToPixels(check.entryWidthTwips), kWidestEntryLine));
    m_warning->setText(check.warning);
    m_warning->setVisible(check.tooLong);
    if (check.preview) {
        m_preview->setText(check.preview->text);
        m_preview->setToolTip(check.preview->text);
        QPalette palette = m_preview->palette();
        palette.setColor(QPalette::WindowText, colorFromBgr(check.preview->color));
        m_preview->setPalette(palette);
    }
    m_row->setContentsMargins(0, 0, twipsToPixels(check.favoriteIconLeft) / 20, 0);
}

bool EntryLinePanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_warning && event->type() == QEvent::MouseButtonRelease)
        emit warningClicked();
    if (watched == m_favoriteCheck && event->type() == QEvent::MouseButtonRelease)
        emit favoriteCheckClicked();
    return QWidget::eventFilter(watched, event);
}

} // namespace quenfor
