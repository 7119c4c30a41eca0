#include "AecApp/TeardownFailureReport.h"

#include "aec/StatusService.h"

#include <exception>
#include <new>
#include <string>
#include <string_view>

namespace aec
{

namespace
{

// The host's failure texts are ASCII; a byte outside it shows as '?' rather than pulling a text
// conversion library into this one message.
std::wstring widened(std::string_view text)
{
    std::wstring wide;
    wide.reserve(text.size());
    for (const char character : text)
        wide.push_back(static_cast<unsigned char>(character) < 0x80 ? static_cast<wchar_t>(character) : L'?');
    return wide;
}

std::wstring describeCurrentFailure()
{
    try
    {
        throw;
    }
    catch (const std::bad_alloc&)
    {
        return L"out of memory";
    }
    catch (const std::exception& failure)
    {
        return widened(failure.what());
    }
    catch (...)
    {
        return L"unknown failure";
    }
}

} // namespace

void reportTeardownFailure(IStatusService* statusService) noexcept
{
    if (statusService == nullptr)
        return;
    try
    {
        statusService->showStatus(
            L"The project explorer could not release its binding with the application: " +
            describeCurrentFailure() + L".");
    }
    catch (...)
    {
        // The status line was the last place to tell; the teardown goes on without it.
    }
}

} // namespace aec
