#pragma once

#include "aec/TransactionHost.h"

namespace aec::fault_injection
{

class CFaultPlan;

// Opens the project's transactions, failing where the plan says; the transactions fail alike.
class CFaultyTransactionHost final : public ITransactionHost
{
public:
    CFaultyTransactionHost(CFaultPlan& plan, ITransactionHost& inner) : plan_(plan), inner_(inner) {}

    [[nodiscard]] std::unique_ptr<ITransaction> openTransaction(const std::string& name) override;

private:
    CFaultPlan& plan_;
    ITransactionHost& inner_;
};

} // namespace aec::fault_injection
