#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace common::test
{

// Pairs of realistic names that differ in one kind of detail each, for comparing two natural
// orderings where they are most likely to part: two names of a project list that share most of
// their text. Each pair belongs to the class of the detail it differs in.
struct NamePair
{
    std::wstring left;
    std::wstring right;
    std::size_t pairClass;
};

class NamePairCorpus
{
public:
    // `count` pairs spread evenly over the classes, the same for a seed on every platform.
    NamePairCorpus(std::size_t count, std::uint32_t seed);

    const std::vector<NamePair>& pairs() const noexcept { return pairs_; }
    static const std::vector<std::string>& classNames();
    // The index of a class by its name; throws std::out_of_range for no class.
    static std::size_t classIndex(const std::string& name);

private:
    std::vector<NamePair> pairs_;
};

} // namespace common::test
