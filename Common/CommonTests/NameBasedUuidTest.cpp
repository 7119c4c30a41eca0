#include "Common/NameBasedUuid.h"

#include <gtest/gtest.h>

namespace
{

using common::makeNameBasedUuid;
using common::UUID;

const UUID dnsNamespace = UUID::parse(std::string_view("6ba7b810-9dad-11d1-80b4-00c04fd430c8"));

// Expected values come from an independent version-5 implementation; the first is the example
// that the Python documentation gives for uuid5(NAMESPACE_DNS, "python.org").
TEST(NameBasedUuidTest, EqualsTheStandardVersion5Uuid)
{
    EXPECT_EQ(makeNameBasedUuid(dnsNamespace, L"python.org").toString(), "886313e1-3b8a-5372-9b90-0c9aee199e5d");

    // Non-ASCII names are hashed as UTF-8 (É, ü and the en dash take two and three bytes).
    const UUID sheetsGroup = UUID::parse(std::string_view("eef589c2-c45e-4286-9e5d-b6fb8ef22fbf"));
    EXPECT_EQ(makeNameBasedUuid(sheetsGroup, L"\u00c9tage 2 \u2013 S\u00fcd").toString(),
              "fb5c12db-826d-5391-96c0-4fbb6deec723");

    const UUID urlNamespace = UUID::parse(std::string_view("6ba7b811-9dad-11d1-80b4-00c04fd430c8"));
    EXPECT_EQ(makeNameBasedUuid(urlNamespace, L"").toString(), "1b4db7eb-4057-5ddf-91e0-36dec72071f5");
}

TEST(NameBasedUuidTest, DependsOnNameAndNamespaceOnly)
{
    const UUID otherNamespace = UUID::parse(std::string_view("eef589c2-c45e-4286-9e5d-b6fb8ef22fbf"));

    EXPECT_EQ(makeNameBasedUuid(dnsNamespace, L"Level 2"), makeNameBasedUuid(dnsNamespace, L"Level 2"));
    EXPECT_NE(makeNameBasedUuid(dnsNamespace, L"Level 2"), makeNameBasedUuid(dnsNamespace, L"level 2"));
    EXPECT_NE(makeNameBasedUuid(dnsNamespace, L"Level 2"), makeNameBasedUuid(otherNamespace, L"Level 2"));
}

} // namespace
