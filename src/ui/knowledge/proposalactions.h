#pragma once

#include <QPointer>

class QWidget;

namespace quenfor {

class ConfigDocument;
class FormOpt;

// The left mouse button of the proposal picture: appends the proposal (asking first through
// Dialogs::question when the document has lines) and then shows the path options window; after
// "No" nothing is appended and no window opens. `window` keeps the open window: a second call
// brings it to the front instead of opening another one. Returns the window shown, or nullptr.
FormOpt* proposeConfiguration(QWidget* parent, ConfigDocument* document, QPointer<FormOpt>& window);

// The right mouse button: asks through Dialogs::question and appends the ghost options on Yes.
// Returns true when they were appended. Swapping the pictures meanwhile is the caller's part.
bool addGhostOptions(QWidget* parent, ConfigDocument& document);

} // namespace quenfor
