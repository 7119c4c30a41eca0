#pragma once

#include <boost/signals2/connection.hpp>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace aec::host
{
class CDocumentGui;
class CExplorerSession;
} // namespace aec::host

namespace aec::shell
{

// Tells the terminal user what the explorer asked of the host while a command ran, which a desktop
// host would show in windows: confirmations and their questions, entities opened, a rename to start
// in the panel, properties to edit, and status-line messages.
class CHostFeedback
{
public:
    // The session must outlive the feedback.
    explicit CHostFeedback(host::CExplorerSession& session);
    ~CHostFeedback();
    CHostFeedback(const CHostFeedback&) = delete;
    CHostFeedback& operator=(const CHostFeedback&) = delete;

    // A command starts: what the host was asked before it is not told again.
    void start();
    // Writes what the host was asked since start, one line for each request (properties take a line
    // for each property too).
    void write(std::ostream& out);

private:
    host::CDocumentGui* documentGui() const;
    void writeProperties(std::ostream& out) const;

    host::CExplorerSession& session_;
    std::size_t questionsSeen_ = 0;
    std::size_t propertyRequestsSeen_ = 0;
    const host::CDocumentGui* openingDocument_ = nullptr;
    std::size_t openingsSeen_ = 0;
    // Rename requests and status messages, in the order they came.
    std::vector<std::string> messages_;
    std::vector<boost::signals2::scoped_connection> connections_;
};

} // namespace aec::shell
