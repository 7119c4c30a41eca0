#pragma once

#include "aec/EntityCollection.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <string>

namespace aec::model
{
class CProject;
} // namespace aec::model

namespace benchmarks
{

// Makes large building projects to measure the explorer on: entities in all ten collections, in
// shares like those of a real project (many assemblies and styles, fewer sheets and tables, a
// handful of linked models and images), about a thousand topics, and names as people write them:
// "A-101 Ground floor plan", "Level 12 ceiling", "Door D-0417 900x2100 EI30", with numbers of
// varying length, now and then leading zeros, mixed letter case and some non-ASCII words
// ("Façade", "Übersicht", "Ø12", "Бетон"). Names are unique within their collection, as the host
// keeps them. Most topic-bearing entities have a topic, a few topics many of them.
//
// The same seed makes the same project, identifiers included: they come from the builder's own
// random engine, not from the process's uuid provider.
class CSyntheticProjectBuilder
{
public:
    using CollectionSizes = std::array<std::size_t, aec::entityCollectionCount>;

    // Projects of fewer than 10,000 entities get a tenth of their entities as topics.
    static constexpr std::size_t defaultTopicCount = 1000;

    explicit CSyntheticProjectBuilder(std::uint32_t seed);

    // How many of `entityCount` entities each collection gets; they add up to `entityCount`.
    static CollectionSizes collectionSizes(std::size_t entityCount);

    // A new project of exactly `entityCount` entities, topics included. It has no undo history.
    std::unique_ptr<aec::model::CProject> build(std::size_t entityCount);

private:
    std::size_t below(std::size_t bound);
    bool oneIn(std::size_t chances);
    const wchar_t* pick(std::initializer_list<const wchar_t*> choices);
    // The serial number that makes a name unique, at times padded with leading zeros.
    std::wstring serial(std::size_t value);
    std::wstring nameOf(aec::EntityCollection collection, std::size_t serialNumber);
    std::wstring topicName(std::size_t serialNumber);
    std::wstring sheetName(std::size_t serialNumber);
    std::wstring tableName(std::size_t serialNumber);
    std::wstring assemblyName(std::size_t serialNumber);
    std::wstring materialName(std::size_t serialNumber);
    std::wstring doorStyleName(std::size_t serialNumber);
    std::wstring windowStyleName(std::size_t serialNumber);
    std::wstring reinforcementStyleName(std::size_t serialNumber);
    std::wstring linkedModelName(std::size_t serialNumber);
    std::wstring imageName(std::size_t serialNumber);
    std::wstring levelName();
    // Some people type in lower case, a few in capitals.
    void varyCase(std::wstring& name);
    // Which of `topicCount` topics an entity belongs to, or `topicCount` for none.
    std::size_t topicIndex(std::size_t topicCount);

    std::mt19937_64 engine_;
};

} // namespace benchmarks
