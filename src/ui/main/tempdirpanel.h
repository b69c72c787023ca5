#pragma once

#include <QFrame>

class QComboBox;
class QLabel;
class QLineEdit;

namespace quenfor {

// The frame "Tempdir" in which the user names the folder for the temporary files. The entry turns
// red while the typed folder does not exist; Enter checks the folder and, when it is usable, stores
// it and reports it through tempDirChanged. Below it the setting "Zielversion": the release the
// check and the picker look at, stored as soon as it is chosen.
class TempDirPanel : public QFrame {
    Q_OBJECT

public:
    explicit TempDirPanel(QWidget* parent = nullptr);

    void setText(const QString& text);
    // The entry's text with a separator at its end; empty when the entry is empty.
    QString folder() const;
    // Shows a stored release name ("CP6"); an empty or unknown name shows "keine".
    void setTargetRelease(const QString& name);

signals:
    // The checked folder, ending in a separator; it is already stored in the settings.
    void tempDirChanged(const QString& folder);
    void closeRequested();
    // The chosen release's short name, empty for none; it is already stored in the settings.
    void targetReleaseChanged(const QString& name);

protected:
    void enterEvent(QEnterEvent* event) override;

private:
    void colourText();
    void check();

    QLineEdit* m_entry;
    QLabel* m_info;
    QLabel* m_checkResult;
    QComboBox* m_release;
};

} // namespace quenfor
