#pragma once

#include "aec/ContextMenuItem.h"

#include <string>

namespace aec
{

class IGui;
class ITranslation;

// The items of the standard families share one shape: a translated text, a fixed identifier, no
// sub-items, the further flag false and the number 0.
CContextMenuItem makeStandardMenuItem(const ITranslation& translation, int textId, std::string identifier,
                                      CContextMenuItem::Action action, bool enabled);

// An action that runs the host command, so that the menu does what the command does elsewhere.
CContextMenuItem::Action makeCommandAction(IGui& gui, int command);

} // namespace aec
