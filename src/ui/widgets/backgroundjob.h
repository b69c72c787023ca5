#pragma once

#include <QObject>
#include <QPointer>
#include <QThread>

#include <functional>

namespace quenfor {

// Runs long work (a folder walk, a folder of drawings) on a thread of its own, so the window stays
// responsive; `finished` then runs in the window's thread, unless the window has been closed
// meanwhile: the work holds its own data and simply ends unheard.
inline void runInBackground(QObject* context, std::function<void()> work, std::function<void()> finished) {
    QThread* worker = QThread::create(std::move(work));
    QObject::connect(worker, &QThread::finished, context, std::move(finished));
    QObject::connect(worker, &QThread::finished, worker, &QObject::deleteLater);
    worker->start();
}

} // namespace quenfor
