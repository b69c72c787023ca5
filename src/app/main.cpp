#include "ui/documentwindow.h"

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

    quenfor::DocumentWindow window;
    QStringList args = QApplication::arguments();
    if (args.size() > 1) {
        QString path = args.at(1);
        // The program may be started with the path in double quotes; they are not part of it.
        if (path.size() >= 2 && path.startsWith(u'"') && path.endsWith(u'"'))
            path = path.mid(1, path.size() - 2);
        window.openFile(path);
    }
    window.show();
    return app.exec();
}
