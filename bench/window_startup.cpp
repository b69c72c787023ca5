// Time from start to the first painted list of a large file, and peak memory, for the main
// window. Run under a display (Xvfb in window_startup.sh): quenfor's users open such files daily.
#include "document/configdocument.h"
#include "settings/settingsstore.h"
#include "ui/main/mainwindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QListView>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/resource.h>

#include <cstdio>

namespace {

class FirstPaint : public QObject {
public:
    FirstPaint(QListView* list, QElapsedTimer& clock) : m_list(list), m_clock(clock) {}
    qint64 elapsed = -1;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && elapsed < 0 && m_list->model()->rowCount() > 0) {
            elapsed = m_clock.elapsed();
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QListView* m_list;
    QElapsedTimer& m_clock;
};

} // namespace

int main(int argc, char** argv) {
    QElapsedTimer clock;
    clock.start();
    if (argc < 2) {
        std::fprintf(stderr, "Aufruf: window_startup DATEI\n");
        return 2;
    }
    QTemporaryDir store;
    quenfor::SettingsStore::setStoreRoot(store.path()); // the user's settings stay untouched
    QApplication app(argc, argv);

    auto* window = new quenfor::MainWindow;
    auto* list = window->findChild<QListView*>(QStringLiteral("List1"));
    FirstPaint paint(list, clock);
    list->viewport()->installEventFilter(&paint);
    window->startUp({QString::fromLocal8Bit(argv[1])});
    window->show();
    QTimer::singleShot(60000, &app, &QCoreApplication::quit); // never hang a benchmark run
    app.exec();

    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("lines=%d first_paint_ms=%lld peak_kb=%ld\n", window->document()->count(),
                static_cast<long long>(paint.elapsed), usage.ru_maxrss);
    std::fflush(stdout);
    std::_Exit(paint.elapsed < 0 ? 1 : 0); // no close question, no teardown of a million lines
}
