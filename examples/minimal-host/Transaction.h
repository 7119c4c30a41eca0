#pragma once

#include "Entity.h"

#include "aec/Transaction.h"

#include <string>
#include <vector>

namespace minimal_host
{

class CProject;

// One named change of the project, one undo step once committed. It keeps a copy of the project's
// entities from its start: destroyed without commit (the change failed), it puts the copy back.
class CTransaction final : public aec::ITransaction
{
public:
    CTransaction(CProject& project, std::string name);
    ~CTransaction() override;
    CTransaction(const CTransaction&) = delete;
    CTransaction& operator=(const CTransaction&) = delete;

    void commit() override;

private:
    CProject& project_;
    std::string name_;
    std::vector<CEntity> before_;
    bool committed_ = false;
};

} // namespace minimal_host
