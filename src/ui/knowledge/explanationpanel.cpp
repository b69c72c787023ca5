#include "ui/knowledge/explanationpanel.h"

#include "ui/widgets/bearpicture.h"
#include "ui/widgets/statushints.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

ExplanationPanel::ExplanationPanel(QWidget* parent)
    : QWidget(parent, Qt::Tool), m_text(new QPlainTextEdit(this)), m_bear(new QLabel(this)),
      m_feedingBear(new QLabel(this)), m_plus(new QPushButton(u"+"_s, this)), m_ok(new QPushButton(u"ok"_s, this)) {
    setObjectName(u"frmErklaer"_s);
    setWindowTitle(u"Erklär-Bär"_s);
    m_text->setObjectName(u"Text1"_s);
    m_bear->setObjectName(u"Image1"_s);
    m_feedingBear->setObjectName(u"Image2"_s);
    m_plus->setObjectName(u"plus"_s);
    m_ok->setObjectName(u"Command1"_s);

    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    m_bear->setPixmap(bearPicture(BearPose::Explaining));
    m_feedingBear->setPixmap(bearPicture(BearPose::Feeding));
    for (QLabel* bear : {m_bear, m_feedingBear}) {
        bear->setCursor(Qt::PointingHandCursor);
        bear->installEventFilter(this);
    }
    m_feedingBear->hide();
    m_plus->hide();
    m_plus->setFixedWidth(36);

    auto* side = new QVBoxLayout;
    side->addWidget(m_bear);
    side->addWidget(m_feedingBear);
    side->addWidget(m_plus, 0, Qt::AlignHCenter);
    side->addStretch();
    side->addWidget(m_ok);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_text, 1);
    layout->addLayout(side);
    resize(560, 300);

    connect(m_plus, &QPushButton::clicked, this, [this] { emit feedRequested(m_text->toPlainText()); });
    connect(m_ok, &QPushButton::clicked, this, [this] {
        emit okClicked();
        close();
    });
}

void ExplanationPanel::registerHints(StatusHints& hints) {
    hints.add(m_bear, u"mit Klick auf den ErklärBär löscht sich das Textfeld und Sie können einen Text in das Feld als "
                      "Erklärung eingeben. + speichert. Ein erneuter Klick bricht die Eingabe ab."_s);
    hints.add(m_feedingBear, u"nun kann der ErklärBär gefüttert werden: Sie können einen Text in das Feld als "
                             "Erklärung eingeben. + speichert. Ein erneuter Klick bricht die Eingabe ab."_s);
    hints.add(m_ok, u"wird mit ok bestätigt, so wird der Haken für die dauerhafte Hilfe des ErklärBärs gelöscht."_s);
}

void ExplanationPanel::showExplanation(const QString& text) {
    setExplanation(text);
    show();
    raise();
}

void ExplanationPanel::setExplanation(const QString& text) {
    m_text->setPlainText(text);
}

QString ExplanationPanel::text() const {
    return m_text->toPlainText();
}

bool ExplanationPanel::isFeeding() const {
    return !m_feedingBear->isHidden();
}

void ExplanationPanel::startFeeding() {
    m_text->clear();
    m_text->setReadOnly(false);
    m_text->setFocus();
    m_bear->hide();
    m_feedingBear->show();
    m_plus->show();
}

void ExplanationPanel::cancelFeeding() {
    m_text->setReadOnly(true); // the typed text stays in view but is not stored
    m_bear->show();
    m_feedingBear->hide();
    m_plus->hide();
}

void ExplanationPanel::feedingDone() {
    cancelFeeding();
}

bool ExplanationPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        if (watched == m_bear)
            startFeeding();
        else if (watched == m_feedingBear)
            cancelFeeding();
    }
    return QWidget::eventFilter(watched, event);
}

void ExplanationPanel::mousePressEvent(QMouseEvent* event) {
    // The right button shows "+", the left hides it: a quick way to store a corrected text.
    if (event->button() == Qt::RightButton)
        m_plus->show();
    else if (event->button() == Qt::LeftButton)
        m_plus->hide();
    QWidget::mousePressEvent(event);
}

} // namespace quenfor
