#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace quenfor {

// What a delete run did to each file it was given.
struct DeleteReport {
    QStringList deleted;  // full paths, in the order given
    QStringList vanished; // no longer a file when its turn came: skipped
    QStringList failed;   // still there after the attempt (no rights, locked ...)

    QString summary() const; // German, for the status line
};

// Clears the read-only bit of a file (on Unix: gives the owner write permission). False when the
// attributes cannot be read or written. A symbolic link is never changed: its target may lie
// anywhere.
bool clearReadOnly(const QString& path);

// Deletes the files one by one: a file that exists as a regular file (not a link) is made
// writable and deleted; anything else is skipped and reported as vanished. afterEach, when given,
// runs after every file (the window keeps responding through it).
DeleteReport deleteFiles(const QStringList& paths, const std::function<void()>& afterEach = {});

} // namespace quenfor
