#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace quenfor {

// The applications whose stores the reset deletes, in its order. The messenger ("Rufpost") is
// not among them: its address book outlives a reset on purpose.
QStringList resetApplications();

struct ResetFailure {
    QString application;
    QString errorText;
};

// Deletes the whole store of every application above. A failure (most often a tool that never
// ran, so its store does not exist) does not stop the reset and is not for the user; the
// failures are returned for logging.
QList<ResetFailure> resetAllSettings();

// The Yes/No question the window asks before the reset.
QString resetQuestion();

} // namespace quenfor
