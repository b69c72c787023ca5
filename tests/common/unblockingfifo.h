#pragma once

// A named pipe for tests of code that must refuse one. Should the code under test open it for
// reading and block, a writer thread opens and closes the pipe, so the faulty open returns with
// an empty read: the test then fails on its assertions instead of hanging the test run.
#include <QFile>
#include <QString>

#include <atomic>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class UnblockingFifo {
public:
    explicit UnblockingFifo(const QString& path) : m_path(QFile::encodeName(path)) {
        m_valid = ::mkfifo(m_path.constData(), 0600) == 0;
        if (m_valid)
            m_writer = std::thread([this] { rescueReaders(); });
    }
    ~UnblockingFifo() {
        m_done = true;
        if (m_writer.joinable())
            m_writer.join();
    }
    UnblockingFifo(const UnblockingFifo&) = delete;
    UnblockingFifo& operator=(const UnblockingFifo&) = delete;

    bool isValid() const { return m_valid; }

private:
    void rescueReaders() {
        while (!m_done) {
            // Succeeds only while a reader has the pipe open.
            const int fd = ::open(m_path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
            if (fd >= 0)
                ::close(fd);
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    }

    QByteArray m_path;
    bool m_valid = false;
    std::atomic_bool m_done = false;
    std::thread m_writer;
};
