#pragma once

#include "ProjectExplorerLib/IProjectExplorerCopierToClipboard.h"

namespace aec
{
class IClipboard;
class ICopyDataBuilder;
class IEntityClassifier;
class IEntitySource;
namespace serialization
{
class IProjectEntityPasteDataSessionSerializer;
} // namespace serialization
} // namespace aec

namespace project_explorer
{

// Copies entities as the host's paste data: the entity source says which entities a copy of the
// requested ones carries, the classifier sorts them into the copy collections, the copy-data
// builder and the serializer turn those into the clipboard's wide string, which goes on the
// clipboard under the project-entities format.
class CProjectExplorerCopierToClipboard final : public IProjectExplorerCopierToClipboard
{
public:
    // All services must outlive the copier.
    CProjectExplorerCopierToClipboard(aec::IClipboard& clipboard, const aec::IEntityClassifier& classifier,
                                      const aec::IEntitySource& entitySource,
                                      const aec::ICopyDataBuilder& copyDataBuilder,
                                      aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer);
    ~CProjectExplorerCopierToClipboard() override;

    // An entity that the classifier cannot place is not implemented (ENotImplemented); the clipboard
    // is then left as it was. Failures of the services pass through.
    void copyToClipboard(const aec::EntityIdList& entities) const override;

private:
    aec::IClipboard& clipboard_;
    const aec::IEntityClassifier& classifier_;
    const aec::IEntitySource& entitySource_;
    const aec::ICopyDataBuilder& copyDataBuilder_;
    aec::serialization::IProjectEntityPasteDataSessionSerializer& serializer_;
};

} // namespace project_explorer
