#pragma once

#include "cadfiles/batchmapkeys.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

namespace quenfor {

// frmTastomatParameter ("Mapkey-Parameter"): the key prefix, the first number, the key of the
// mapkey that runs all others, and the command list of each template, one action a line. OK
// checks everything and keeps the dialog open with the reason when something is refused.
class TastomatParameterDialog : public QDialog {
    Q_OBJECT

public:
    TastomatParameterDialog(const BatchParameters& parameters, const QString& templateId, QWidget* parent = nullptr);

    // The edited parameters; after OK they have passed the checks.
    BatchParameters parameters() const;
    // The template whose commands are shown.
    void showTemplate(const QString& id);
    // Puts the default commands back into the shown template.
    void restoreDefaultActions();

    void accept() override;

private:
    void keepShownActions();
    void showActions();
    QStringList typedActions() const;

    BatchParameters m_parameters;
    int m_shown = -1;
    QLineEdit* m_prefix;
    QSpinBox* m_first;
    QLineEdit* m_collector;
    QComboBox* m_template;
    QPlainTextEdit* m_actions;
    QPushButton* m_defaults;
    QLabel* m_problem;
};

} // namespace quenfor
