#pragma once

#include "aec/AecApi.h"

#include <memory>
#include <string>

namespace aec
{

class ITransaction;

// Opens the project's named transactions.
class AEC_INTERFACE ITransactionHost
{
public:
    virtual ~ITransactionHost() = default;

    // Opens a transaction with the name shown in the undo history. Dropping the transaction rolls
    // it back, so a result left unused is a mistake.
    [[nodiscard]] virtual std::unique_ptr<ITransaction> openTransaction(const std::string& name) = 0;
};

} // namespace aec
