#pragma once

#include "desktools/translationrequest.h"
#include "document/documentfile.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class QNetworkAccessManager;
class QNetworkReply;

namespace quenfor {

// Asks the translation service for one line after the other, in the background of the event
// loop, so the window stays usable: a POST of text/xml with an empty body per line, each with a
// time limit. Empty lines are not asked for. A failed line (no answer, an error, a timeout, an
// answer without translation) gives an empty result, and the run goes on.
class LineTranslator : public QObject {
    Q_OBJECT

public:
    explicit LineTranslator(QObject* parent = nullptr);
    ~LineTranslator() override;

    struct Job {
        QStringList lines;
        TranslationDirection direction = TranslationDirection::GermanToEnglish;
        QString endpoint;
        int timeoutMs = 15000;
        EncodingChoice answerEncoding; // for answers that are not UTF-8
    };
    void start(Job job);
    // Stops after aborting the open request; `finished` follows with cancelled = true.
    void cancel();
    bool isRunning() const { return m_running; }

signals:
    // One per line, in order; `failed` for a non-empty line that came back empty.
    void lineTranslated(qsizetype index, const QString& result, bool failed);
    void finished(bool cancelled);

private:
    void askNext();
    void answerArrived(QNetworkReply* reply);
    void finish(bool cancelled);

    QNetworkAccessManager* m_network;
    QPointer<QNetworkReply> m_reply;
    Job m_job;
    qsizetype m_next = 0;
    bool m_running = false;
};

} // namespace quenfor
