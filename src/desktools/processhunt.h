#pragma once

#include "desktools/processtable.h"

#include <QObject>
#include <QString>
#include <QStringList>

class QTimer;

namespace quenfor {

// True when the name begins with the prefix, exactly and case-sensitively: "note" matches
// notepad.exe and notes.exe but not Notepad.exe. An empty prefix matches every name.
bool matchesHuntPrefix(QStringView name, QStringView prefix);

// What one scan of the hunt did.
struct HuntTick {
    int ended = 0;        // processes ended by this scan
    QStringList failures; // German, one for each process that could not be ended
};

// The process killer's hunt: every 100 ms a scan of the process table ends each process whose
// name begins with the prefix, never the program's own process. The next scan is timed from the
// end of the previous one, so a scan that takes longer than 100 ms delays the next instead of
// letting them pile up. The counters run for the life of the hunt object.
class ProcessHunt : public QObject {
    Q_OBJECT

public:
    static constexpr int kIntervalMs = 100;

    explicit ProcessHunt(ProcessTable& table, QObject* parent = nullptr);

    // Starts hunting; an empty prefix is refused (it would end every process) with a German
    // message, which is returned; empty when the hunt runs.
    QString start(const QString& prefix);
    void stop();
    bool isRunning() const { return m_running; }
    QString prefix() const { return m_prefix; }

    qint64 scans() const { return m_scans; }
    qint64 kills() const { return m_kills; }

    // One scan now, as the timer does it.
    HuntTick scanOnce();

    static QString emptyPrefixMessage();

signals:
    void scanned(const quenfor::HuntTick& tick);
    void runningChanged(bool running);

private:
    void onTimer();

    ProcessTable& m_table;
    QTimer* m_timer;
    QString m_prefix;
    bool m_running = false;
    qint64 m_scans = 0;
    qint64 m_kills = 0;
};

} // namespace quenfor
