#pragma once

#include "AecModel/ModelChange.h"

#include <vector>

namespace aec::model
{

class CChangeNotifier;
class CEntityStore;

// Carries journaled changes out on the entities, forward or backward, and tells the notifier which
// entities they touched. It is the only place where entity content is written.
class CChangeApplier
{
public:
    CChangeApplier(CEntityStore& store, CChangeNotifier& notifier);

    void apply(const ModelChange& change, ChangeDirection direction);
    // Applies a whole step: forward in order, backward in reverse order; then notifies unless a
    // batch is open.
    void replay(const std::vector<ModelChange>& changes, ChangeDirection direction);

private:
    class CVisitor;

    CEntityStore& store_;
    CChangeNotifier& notifier_;
};

} // namespace aec::model
