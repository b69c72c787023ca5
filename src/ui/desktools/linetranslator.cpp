#include "ui/desktools/linetranslator.h"

#include "desktools/translationanswer.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace quenfor {

LineTranslator::LineTranslator(QObject* parent) : QObject(parent), m_network(new QNetworkAccessManager(this)) {}

LineTranslator::~LineTranslator() {
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
}

void LineTranslator::start(Job job) {
    if (m_running)
        return;
    m_job = std::move(job);
    m_next = 0;
    m_running = true;
    // Queued, so that the caller has shown its progress before the first line arrives.
    QTimer::singleShot(0, this, &LineTranslator::askNext);
}

void LineTranslator::cancel() {
    if (!m_running)
        return;
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
        m_reply->deleteLater();
    }
    finish(true);
}

void LineTranslator::askNext() {
    if (!m_running)
        return;
    // Empty lines need no service; a run of them must not block the event loop either.
    while (m_next < m_job.lines.size() && m_job.lines.at(m_next).isEmpty()) {
        emit lineTranslated(m_next++, QString(), false);
        if (!m_running)
            return;
    }
    if (m_next == m_job.lines.size()) {
        finish(false);
        return;
    }
    const QString address = translationAddress(m_job.endpoint, m_job.lines.at(m_next), m_job.direction);
    QNetworkRequest request(QUrl(address, QUrl::TolerantMode));
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"text/xml"_s);
    request.setTransferTimeout(m_job.timeoutMs);
    QNetworkReply* reply = m_network->post(request, QByteArray());
    m_reply = reply;
    // A service that sends far more than a page of one line is not answering the question.
    connect(reply, &QNetworkReply::downloadProgress, this, [reply](qint64 received, qint64) {
        if (received > kMaxTranslationAnswerBytes)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { answerArrived(reply); });
}

void LineTranslator::answerArrived(QNetworkReply* reply) {
    reply->deleteLater();
    if (reply != m_reply || !m_running)
        return;
    m_reply = nullptr;
    const QString result = reply->error() == QNetworkReply::NoError
                               ? translationFromAnswer(reply->readAll(), m_job.answerEncoding)
                               : QString();
    emit lineTranslated(m_next++, result, result.isEmpty());
    if (m_running)
        QTimer::singleShot(0, this, &LineTranslator::askNext);
}

void LineTranslator::finish(bool cancelled) {
    m_running = false;
    m_reply = nullptr;
    emit finished(cancelled);
}

} // namespace quenfor
