#include "ui/desktools/interpolationwindow.h"

#include "desktools/interpolation.h"
#include "ui/widgets/dialogs.h"
#include "ui/widgets/folderwidgets.h"
#include "ui/widgets/formwidgets.h"
#include "ui/widgets/panelheader.h"
#include "ui/widgets/statushints.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

InterpolationWindow::InterpolationWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(u"frmInterpolation"_s);
    setWindowTitle(tr("lineare Interpolation"));
    m_status = makeStatusLine(this, u"lblstatus"_s);
    m_hints = new StatusHints(m_status, this);

    const QString names[] = {u"x1"_s, u"y1"_s, u"x2"_s, u"y2"_s, u"a"_s};
    for (std::size_t i = 0; i < m_inputs.size(); ++i) {
        QLineEdit* field = numberField(names[i], this, 12);
        connect(field, &QLineEdit::textEdited, this, [this, field] { filterField(field); });
        connect(field, &QLineEdit::returnPressed, this, &InterpolationWindow::calculate);
        m_hints->add(field, tr("Zahl mit Dezimalkomma, z. B. 2,5"));
        m_inputs[i] = field;
    }
    m_result = numberField(u"b"_s, this, 12);
    m_result->setReadOnly(true);
    m_hints->add(m_result, tr("Ergebnis"));
    auto* calculateButton = namedButton(u"cmd_calc"_s, tr("berechnen"), this);
    calculateButton->setDefault(true);
    connect(calculateButton, &QPushButton::clicked, this, &InterpolationWindow::calculate);
    m_hints->add(calculateButton, tr("b aus den beiden Punkten und a berechnen"));

    auto* grid = new QGridLayout;
    grid->addWidget(boldLabel(tr("x"), this), 0, 1);
    grid->addWidget(boldLabel(tr("y"), this), 0, 2);
    grid->addWidget(new QLabel(tr("Punkt 1"), this), 1, 0);
    grid->addWidget(m_inputs[0], 1, 1);
    grid->addWidget(m_inputs[1], 1, 2);
    grid->addWidget(new QLabel(tr("Punkt 2"), this), 2, 0);
    grid->addWidget(m_inputs[2], 2, 1);
    grid->addWidget(m_inputs[3], 2, 2);
    grid->addWidget(new QLabel(tr("a"), this), 3, 0);
    grid->addWidget(m_inputs[4], 3, 1);
    grid->addWidget(new QLabel(tr("b"), this), 4, 0);
    grid->addWidget(m_result, 4, 1);
    grid->addWidget(calculateButton, 4, 2);

    auto* formula = new QLabel(tr("b = ((a − x2) + (y1 − y2)) ÷ (x1 − x2) + y2"), this);
    formula->setObjectName(u"lbl_formel"_s);
    formula->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* exit = namedButton(u"cmd_exit"_s, tr("Schließen"), this);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(formula);
    layout->addStretch(1);
    layout->addLayout(statusRow(m_status, exit));
}

void InterpolationWindow::filterField(QLineEdit* field) {
    const FilteredNumberText filtered = filterNumberText(field->text(), field->cursorPosition());
    if (filtered.text != field->text()) {
        field->setText(filtered.text);
        field->setCursorPosition(filtered.cursor);
    }
    if (filtered.refused)
        Dialogs::information(this, onlyNumbersMessage());
}

void InterpolationWindow::calculate() {
    const InterpolationResult result = interpolate(
        {m_inputs[0]->text(), m_inputs[1]->text(), m_inputs[2]->text(), m_inputs[3]->text(), m_inputs[4]->text()});
    m_result->setText(result.text);
    m_status->setText(result.error);
    if (!result.ok)
        Dialogs::information(this, result.error);
}

} // namespace quenfor
