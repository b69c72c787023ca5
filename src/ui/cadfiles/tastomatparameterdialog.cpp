#include "ui/cadfiles/tastomatparameterdialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quenfor {

TastomatParameterDialog::TastomatParameterDialog(const BatchParameters& parameters, const QString& templateId,
                                                 QWidget* parent)
    : QDialog(parent), m_parameters(parameters), m_prefix(new QLineEdit(parameters.keyPrefix, this)),
      m_first(new QSpinBox(this)), m_collector(new QLineEdit(parameters.collectorKey, this)),
      m_template(new QComboBox(this)), m_actions(new QPlainTextEdit(this)),
      m_defaults(new QPushButton(tr("Standardbefehle"), this)), m_problem(new QLabel(this)) {
    setObjectName(u"frmTastomatParameter"_s);
    setWindowTitle(tr("Mapkey-Parameter"));

    m_prefix->setObjectName(u"txt_praefix"_s);
    m_first->setObjectName(u"spn_startnummer"_s);
    m_collector->setObjectName(u"txt_sammeltaste"_s);
    m_template->setObjectName(u"cbo_vorlage"_s);
    m_actions->setObjectName(u"txt_befehle"_s);
    m_defaults->setObjectName(u"cmd_standard"_s);
    m_problem->setObjectName(u"lbl_fehler"_s);

    m_first->setRange(0, kMaxFirstNumber);
    m_first->setValue(parameters.firstNumber);
    m_collector->setPlaceholderText(tr("leer: kein Sammel-Mapkey"));
    m_collector->setToolTip(tr("Ein Mapkey auf dieser Taste ruft alle erzeugten Mapkeys nacheinander auf."));
    for (const MapkeyTemplate& tmpl : std::as_const(m_parameters.templates))
        m_template->addItem(tmpl.name, tmpl.id);

    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_actions->setFont(fixed);
    m_actions->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_actions->setMinimumSize(QFontMetrics(fixed).horizontalAdvance(QString(72, u'x')),
                              10 * QFontMetrics(fixed).lineSpacing());
    m_problem->setWordWrap(true);
    m_problem->setStyleSheet(u"color: #c00000;"_s);
    m_problem->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* form = new QFormLayout;
    form->addRow(tr("Tasten-Präfix:"), m_prefix);
    form->addRow(tr("Erste Nummer:"), m_first);
    form->addRow(tr("Sammel-Mapkey:"), m_collector);

    auto* templateRow = new QHBoxLayout;
    templateRow->addWidget(new QLabel(tr("Befehle der Vorlage:"), this));
    templateRow->addWidget(m_template, 1);
    templateRow->addWidget(m_defaults);

    auto* placeholders = new QLabel(tr("Ein Befehl je Zeile, jeder endet mit \";\". Platzhalter: %1 Dateiname, "
                                       "%2 voller Pfad, %3 Ordner der Datei.")
                                        .arg(QString::fromUtf16(kFilePlaceholder), QString::fromUtf16(kPathPlaceholder),
                                             QString::fromUtf16(kFolderPlaceholder)),
                                    this);
    placeholders->setObjectName(u"lbl_platzhalter"_s);
    placeholders->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(u"cmd_ok"_s);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(u"cmd_abbrechen"_s);
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Abbrechen"));

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(templateRow);
    layout->addWidget(m_actions, 1);
    layout->addWidget(placeholders);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);

    m_template->setCurrentIndex(qMax(0, m_template->findData(templateId)));
    showActions();
    connect(m_template, &QComboBox::currentIndexChanged, this, [this] {
        keepShownActions();
        showActions();
    });
    connect(m_defaults, &QPushButton::clicked, this, &TastomatParameterDialog::restoreDefaultActions);
    connect(buttons, &QDialogButtonBox::accepted, this, &TastomatParameterDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TastomatParameterDialog::reject);
}

BatchParameters TastomatParameterDialog::parameters() const {
    BatchParameters parameters = m_parameters;
    parameters.keyPrefix = m_prefix->text().trimmed();
    parameters.firstNumber = m_first->value();
    parameters.collectorKey = m_collector->text().trimmed();
    if (m_shown >= 0 && m_shown < parameters.templates.size())
        parameters.templates[m_shown].actions = typedActions();
    return parameters;
}

void TastomatParameterDialog::showTemplate(const QString& id) {
    // The change signal keeps the commands typed so far and shows the other template's.
    const int index = m_template->findData(id);
    if (index >= 0)
        m_template->setCurrentIndex(index);
}

void TastomatParameterDialog::restoreDefaultActions() {
    if (m_shown < 0)
        return;
    m_actions->setPlainText(defaultActions(m_parameters.templates.at(m_shown).id).join(u'\n'));
}

void TastomatParameterDialog::accept() {
    keepShownActions();
    const BatchParameters edited = parameters();
    const QString problem = checkBatchParameters(edited);
    m_problem->setText(problem);
    if (!problem.isEmpty())
        return;
    m_parameters = edited;
    QDialog::accept();
}

void TastomatParameterDialog::keepShownActions() {
    if (m_shown >= 0 && m_shown < m_parameters.templates.size())
        m_parameters.templates[m_shown].actions = typedActions();
}

void TastomatParameterDialog::showActions() {
    m_shown = m_template->currentIndex();
    if (m_shown >= 0)
        m_actions->setPlainText(m_parameters.templates.at(m_shown).actions.join(u'\n'));
}

QStringList TastomatParameterDialog::typedActions() const {
    QStringList actions;
    for (const QString& line : m_actions->toPlainText().split(u'\n')) {
        if (!line.trimmed().isEmpty())
            actions << line.trimmed();
    }
    return actions;
}

} // namespace quenfor
