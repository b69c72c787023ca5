#include "ui/widgets/dialogs.h"

#include <QFileDialog>
#include <QMessageBox>

namespace quenfor {

namespace {

Dialogs::Handler& handler() {
    static Dialogs::Handler h;
    return h;
}

QStringList& shownTexts() {
    static QStringList texts;
    return texts;
}

const QString& title() {
    static const QString t = QStringLiteral("quenfor");
    return t;
}

Dialogs::Reply ask(const Dialogs::Request& request, const std::function<Dialogs::Reply()>& show) {
    shownTexts().append(request.text);
    if (handler())
        return handler()(request);
    return show();
}

} // namespace

Dialogs::Answer Dialogs::question(QWidget* parent, const QString& text) {
    return ask({Kind::Question, text},
               [&] {
                   const auto b = QMessageBox::question(parent, title(), text, QMessageBox::Yes | QMessageBox::No);
                   return Reply{b == QMessageBox::Yes ? Answer::Yes : Answer::No, {}};
               })
        .answer;
}

Dialogs::Answer Dialogs::warning(QWidget* parent, const QString& text) {
    return ask({Kind::Warning, text},
               [&] {
                   const auto b = QMessageBox::warning(parent, title(), text, QMessageBox::Ok | QMessageBox::Cancel);
                   return Reply{b == QMessageBox::Ok ? Answer::Ok : Answer::Cancel, {}};
               })
        .answer;
}

void Dialogs::information(QWidget* parent, const QString& text) {
    ask({Kind::Information, text}, [&] {
        QMessageBox::information(parent, title(), text);
        return Reply{};
    });
}

void Dialogs::critical(QWidget* parent, const QString& text) {
    ask({Kind::Critical, text}, [&] {
        QMessageBox::critical(parent, title(), text);
        return Reply{};
    });
}

QString Dialogs::openFile(QWidget* parent, const QString& caption, const QString& folder, const QString& filter) {
    return ask({Kind::OpenFile, caption},
               [&] {
                   return Reply{Answer::Ok, QFileDialog::getOpenFileName(parent, caption, folder, filter)};
               })
        .path;
}

QString Dialogs::saveFile(QWidget* parent, const QString& caption, const QString& path, const QString& filter) {
    return ask({Kind::SaveFile, caption},
               [&] {
                   return Reply{Answer::Ok, QFileDialog::getSaveFileName(parent, caption, path, filter)};
               })
        .path;
}

QString Dialogs::chooseFolder(QWidget* parent, const QString& caption, const QString& folder) {
    return ask({Kind::ChooseFolder, caption},
               [&] {
                   return Reply{Answer::Ok, QFileDialog::getExistingDirectory(parent, caption, folder)};
               })
        .path;
}

void Dialogs::setHandler(Handler h) {
    handler() = std::move(h);
}

QStringList Dialogs::takeShownTexts() {
    return std::exchange(shownTexts(), {});
}

} // namespace quenfor
