#include "common/qttranslations.h"
#include "ui/main/mainwindow.h"

#include <QApplication>

#include <csignal>

int main(int argc, char* argv[]) {
#ifdef SIGXFSZ
    // A file size limit must fail the save, which keeps the old file, not kill the program.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quenfor"));
    QApplication::setApplicationVersion(QStringLiteral(QUENFOR_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("quenfor"));
    quenfor::installGermanQtTranslations(app);

    quenfor::MainWindow window;
    window.startUp(QApplication::arguments().mid(1));
    window.show();
    return app.exec();
}
