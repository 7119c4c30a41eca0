#pragma once

#include "aec/Transaction.h"

#include <memory>

namespace aec::fault_injection
{

class CFaultPlan;

// One open transaction of the project, failing where the plan says. A commit that fails leaves the
// transaction uncommitted, so that destroying it rolls the project back as the host promises.
class CFaultyTransaction final : public ITransaction
{
public:
    [[nodiscard]] CFaultyTransaction(CFaultPlan& plan, std::unique_ptr<ITransaction> inner);
    ~CFaultyTransaction() override;
    CFaultyTransaction(const CFaultyTransaction&) = delete;
    CFaultyTransaction& operator=(const CFaultyTransaction&) = delete;

    void commit() override;

private:
    CFaultPlan& plan_;
    std::unique_ptr<ITransaction> inner_;
};

} // namespace aec::fault_injection
