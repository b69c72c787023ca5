#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace quenfor {

class StatusHints;

// frmErklaer, the Erklär-Bär: a small window beside the main window with the explanation of the
// entry line. A click on the bear empties the text for the user's own explanation ("feeding"),
// "+" hands it to the main window to store, a second click on the bear cancels.
class ExplanationPanel : public QWidget {
    Q_OBJECT

public:
    explicit ExplanationPanel(QWidget* parent = nullptr);

    void showExplanation(const QString& text);
    // Replaces the text without opening the window; an open one shows it at once.
    void setExplanation(const QString& text);
    QString text() const;
    bool isFeeding() const;
    // After the main window stored the explanation: back to the explaining bear.
    void feedingDone();
    void registerHints(StatusHints& hints);

signals:
    void feedRequested(const QString& explanation);
    void okClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void startFeeding();
    void cancelFeeding();

    QPlainTextEdit* m_text; // Text1
    QLabel* m_bear;         // Image1
    QLabel* m_feedingBear;  // Image2
    QPushButton* m_plus;
    QPushButton* m_ok; // Command1
};

} // namespace quenfor
