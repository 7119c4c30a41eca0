#pragma once

#include "aec/AecApi.h"

namespace aec
{

class IClipboard;

// Follows the clipboard's content.
class AEC_INTERFACE IClipboardListener
{
public:
    virtual ~IClipboardListener() = default;

    // The clipboard's content changed.
    virtual void clipboardChanged(const IClipboard& clipboard) = 0;
};

// Where clipboard listeners register.
class AEC_INTERFACE IClipboardListenerRegistry
{
public:
    virtual ~IClipboardListenerRegistry() = default;

    // Registers the listener and tells it the current content at once.
    virtual void addListener(IClipboardListener& listener) = 0;
    // Unregisters the listener.
    virtual void removeListener(IClipboardListener& listener) = 0;
};

} // namespace aec
