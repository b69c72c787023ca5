#include "desktools/processhunt.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace quenfor {

bool matchesHuntPrefix(QStringView name, QStringView prefix) {
    return name.startsWith(prefix, Qt::CaseSensitive);
}

ProcessHunt::ProcessHunt(ProcessTable& table, QObject* parent)
    : QObject(parent), m_table(table), m_timer(new QTimer(this)) {
    m_timer->setObjectName(u"Timer1"_s);
    // Single shot, restarted when a scan is done: a slow scan delays the next one.
    m_timer->setSingleShot(true);
    m_timer->setInterval(kIntervalMs);
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer, &QTimer::timeout, this, &ProcessHunt::onTimer);
}

QString ProcessHunt::emptyPrefixMessage() {
    return u"Bitte den Anfang eines Programmnamens eingeben. Ohne ihn würde jeder Prozess beendet."_s;
}

QString ProcessHunt::start(const QString& prefix) {
    if (prefix.isEmpty())
        return emptyPrefixMessage();
    m_prefix = prefix;
    if (!m_running) {
        m_running = true;
        m_timer->start();
        emit runningChanged(true);
    }
    return {};
}

void ProcessHunt::stop() {
    m_timer->stop();
    if (!m_running)
        return;
    m_running = false;
    emit runningChanged(false);
}

HuntTick ProcessHunt::scanOnce() {
    HuntTick tick;
    ++m_scans;
    // The prefix was checked on start; this guard keeps a direct call just as safe.
    if (m_prefix.isEmpty())
        return tick;
    const qint64 own = m_table.ownProcessId();
    for (const ProcessEntry& process : m_table.listProcesses()) {
        if (process.pid == own || !matchesHuntPrefix(process.name, m_prefix))
            continue;
        const TerminateResult result = m_table.terminateProcess(process.pid);
        if (result.ended)
            ++tick.ended;
        else
            tick.failures.append(u"%1: %2"_s.arg(process.name, result.error));
    }
    m_kills += tick.ended;
    return tick;
}

void ProcessHunt::onTimer() {
    const HuntTick tick = scanOnce();
    emit scanned(tick);
    // Whoever listened may have stopped the hunt.
    if (m_running)
        m_timer->start();
}

} // namespace quenfor
