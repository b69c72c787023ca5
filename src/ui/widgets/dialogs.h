#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace quenfor {

// Every message box and file dialog of the program goes through here, so window tests can
// answer them without a modal loop.
class Dialogs {
public:
    enum class Kind { Question, Warning, Information, Critical, OpenFile, SaveFile, ChooseFolder };
    enum class Answer { Yes, No, Ok, Cancel };

    // Yes/No question.
    static Answer question(QWidget* parent, const QString& text);
    // Warning that lets the user go on (OK) or stop (Cancel).
    static Answer warning(QWidget* parent, const QString& text);
    // A message with only OK.
    static void information(QWidget* parent, const QString& text);
    // An error that stops the action, with only OK.
    static void critical(QWidget* parent, const QString& text);

    // File dialogs; an empty string when cancelled.
    static QString openFile(QWidget* parent, const QString& title, const QString& folder, const QString& filter = {});
    static QString saveFile(QWidget* parent, const QString& title, const QString& path, const QString& filter = {});
    static QString chooseFolder(QWidget* parent, const QString& title, const QString& folder);

    // A test replaces the boxes: the handler gets the kind and the text (or title) and answers;
    // for file dialogs it returns the path in `path`. Pass an empty function to restore the boxes.
    struct Request {
        Kind kind;
        QString text;
    };
    struct Reply {
        Answer answer = Answer::Ok;
        QString path;
    };
    using Handler = std::function<Reply(const Request&)>;
    static void setHandler(Handler handler);
    // Texts of every box shown since the last call, for tests to check.
    static QStringList takeShownTexts();
};

} // namespace quenfor
