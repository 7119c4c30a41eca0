#pragma once

namespace aec
{
class IDocumentGui;
} // namespace aec

namespace project_explorer
{

// Stops a document's user interface from following project changes while entities are pasted
// (it would otherwise select and show each new entity as it appears), and gives the flag back as
// it was, also when the paste fails.
class CFollowingChangesPause final
{
public:
    // A null user interface makes a pause that does nothing; a set one must outlive the pause.
    [[nodiscard]] explicit CFollowingChangesPause(aec::IDocumentGui* gui);
    ~CFollowingChangesPause();
    CFollowingChangesPause(const CFollowingChangesPause&) = delete;
    CFollowingChangesPause& operator=(const CFollowingChangesPause&) = delete;

    // Gives the flag back, passing on what the user interface throws; after a failure the
    // destructor tries once more. Does nothing once the flag is back.
    void end();

private:
    aec::IDocumentGui* gui_;
    bool wasFollowing_;
};

} // namespace project_explorer
