#include "Common/SequentialUuidProvider.h"
#include "Common/UuidProvider.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace
{

using common::UUID;

// Hands out 1, 2, 3, ... from a base and remembers the texts it was asked with.
class CCountingUuidProvider : public common::IUuidProvider
{
public:
    explicit CCountingUuidProvider(std::uint32_t base) : next_(base) {}

    UUID generate(const std::string& hint) override
    {
        hints.push_back(hint);
        return UUID::fromFields(++next_, 0, 0, {});
    }

    std::vector<std::string> hints;

private:
    std::uint32_t next_;
};

UUID numbered(std::uint32_t number)
{
    return UUID::fromFields(number, 0, 0, {});
}

class UuidProviderTest : public ::testing::Test
{
protected:
    void TearDown() override
    {
        common::installUuidProvider(nullptr);
        common::installUuidJournal(nullptr);
    }
};

TEST_F(UuidProviderTest, GenerateUsesTheInstalledProviderAndJournalsItsValues)
{
    const auto journal = std::make_shared<std::vector<UUID>>();
    common::installUuidJournal(journal);
    const auto first = std::make_shared<CCountingUuidProvider>(0);
    common::installUuidProvider(first);
    EXPECT_EQ(UUID::generate(), numbered(1));
    EXPECT_EQ(UUID::generate(), numbered(2));
    EXPECT_EQ(first->hints, (std::vector<std::string>{"", ""}));

    common::installUuidProvider(std::make_shared<CCountingUuidProvider>(100));
    EXPECT_EQ(UUID::generate(), numbered(101));
    EXPECT_EQ(first.use_count(), 1) << "the replaced provider is still held";

    // Without a provider, fresh random UUIDs, which the journal does not record.
    common::installUuidProvider(nullptr);
    EXPECT_EQ(common::installedUuidProvider(), nullptr);
    EXPECT_NE(UUID::generate(), numbered(102));
    EXPECT_EQ(*journal, (std::vector{numbered(1), numbered(2), numbered(101)}));

    common::installUuidJournal(nullptr);
    common::installUuidProvider(first);
    EXPECT_EQ(UUID::generate(), numbered(3));
    EXPECT_EQ(journal->size(), 3u);
}

TEST_F(UuidProviderTest, SequentialProviderRepeatsPerSeed)
{
    common::CSequentialUuidProvider provider(42);
    common::CSequentialUuidProvider sameSeed(42);
    common::CSequentialUuidProvider otherSeed(43);
    // The standard fixes every draw of std::mt19937_64, and a UUID holds two draws' bytes, lowest
    // byte first, whatever the machine's byte order; so a seed names the same UUIDs everywhere.
    std::mt19937_64 engine(42);
    std::set<UUID> distinct;
    for (int i = 0; i < 100; ++i)
    {
        const UUID uuid = provider.generate("");
        UUID::Bytes drawn{};
        for (std::size_t half = 0; half < 2; ++half)
            for (std::uint64_t draw = engine(), byte = 0; byte < 8; ++byte, draw >>= 8)
                drawn[8 * half + byte] = static_cast<std::uint8_t>(draw);
        EXPECT_EQ(uuid, UUID::version4FromRandomBytes(drawn));
        // The version digit and the variant digit of an RFC 4122 random UUID.
        const std::string text = uuid.toString();
        EXPECT_TRUE(text[14] == '4' && std::string("89ab").find(text[19]) != std::string::npos) << text;
        EXPECT_EQ(uuid, sameSeed.generate("ignored"));
        EXPECT_NE(uuid, otherSeed.generate(""));
        distinct.insert(uuid);
    }
    EXPECT_EQ(distinct.size(), 100u);
}

} // namespace
