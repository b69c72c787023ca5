#pragma once

#include "lint/linter.h"

#include <QWidget>

#include <memory>

class QLabel;
class QPushButton;
class QTableView;
class QTimer;

namespace quenfor {

class ConfigDocument;
class LintFindingModel;
class StatusHints;

// "Prüfen": the findings of the check of the open document, one row each with its line number.
// The check runs beside the window, so a file of a million lines keeps it answering; "Neu
// prüfen" runs it again and stops a running check. A change of the document marks the findings
// as old; a newly opened file is checked at once while the view is shown.
class LintPanel : public QWidget {
    Q_OBJECT

public:
    explicit LintPanel(ConfigDocument* document, QWidget* parent = nullptr);
    ~LintPanel() override;

    // Checks the document's lines as they are now.
    void check();
    void cancel();
    bool isRunning() const { return m_job != nullptr; }

    void registerHints(StatusHints& hints);
    const LintFindingModel& model() const { return *m_model; }
    QString summary() const;

signals:
    // The user chose a finding: the document line it stands on (from 0) and its message.
    void findingChosen(int index, const QString& message);
    // A check ended, whether with findings, without, or cancelled.
    void checked();

private:
    struct Job;

    void finish();
    void showProgress();
    void documentChanged();
    void choose(const QModelIndex& index);
    void setRunning(bool running);

    ConfigDocument* m_document;
    LintFindingModel* m_model;
    QLabel* m_summary = nullptr;
    QPushButton* m_recheck = nullptr;
    QTableView* m_table = nullptr;
    QTimer* m_progressTimer = nullptr;
    std::shared_ptr<Job> m_job;
    bool m_again = false; // asked to check while a check ran: check again when it ends
    bool m_stale = false;
};

} // namespace quenfor
