#pragma once

#include "aec/Transaction.h"

#include <cstdint>

namespace aec::model
{

class CTransactionHost;

// One open transaction of the project; destroying it uncommitted rolls its changes back.
class CTransaction final : public ITransaction
{
public:
    [[nodiscard]] CTransaction(CTransactionHost& host, std::uint64_t serial);
    ~CTransaction() override;
    CTransaction(const CTransaction&) = delete;
    CTransaction& operator=(const CTransaction&) = delete;

    // Once only, and only while no transaction opened inside this one is still open.
    void commit() override;

private:
    CTransactionHost& host_;
    std::uint64_t serial_;
    bool committed_ = false;
};

} // namespace aec::model
