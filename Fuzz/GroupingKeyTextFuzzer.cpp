// Sets a group's grouping key from stored text, the way a restored explorer does. The text must
// either become the key it spells, which reads back as its canonical text, or fail in one of the
// two documented ways (text that is no key, a key that the group cannot use) and leave the model
// exactly as it was, without a signal.

#include "AecModel/Project.h"
#include "AecModel/PropertyCatalog.h"
#include "Common/AssertionViolation.h"
#include "Common/UUID.h"
#include "ProjectExplorerLib/ProjectExplorerGroupingModel.h"
#include "Support/FuzzCheck.h"
#include "Support/WideInput.h"
#include "aec/ProjectExplorerGroupInfo.h"

#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using aec::PropertyAssignmentKey;

// The input's last byte chooses the situation; the rest is the text.
enum Situation : std::uint8_t
{
    projectHasTopics = 1,
    groupIsGroupable = 2,
    startGroupedByTopic = 4,
    textIsAbsent = 8,
};

// The key a text spells: identifiers joined with '#', the property last.
std::optional<PropertyAssignmentKey> spelledKey(std::wstring_view text)
{
    std::vector<common::UUID> identifiers;
    for (;;)
    {
        const std::size_t separator = text.find(L'#');
        const std::optional<common::UUID> identifier = common::UUID::tryParse(text.substr(0, separator));
        if (!identifier)
            return std::nullopt;
        identifiers.push_back(*identifier);
        if (separator == std::wstring_view::npos)
            break;
        text.remove_prefix(separator + 1);
    }
    const common::UUID property = identifiers.back();
    identifiers.pop_back();
    return PropertyAssignmentKey(std::move(identifiers), property);
}

std::wstring canonicalText(const PropertyAssignmentKey& key)
{
    std::wstring text;
    for (const common::UUID& step : key.getPath())
        text += step.toWString() + L'#';
    return text + key.getProperty().toWString();
}

const aec::model::CProject& project(bool withTopics)
{
    static const aec::model::CProject withoutTopic;
    static const auto withTopic = []
    {
        auto made = std::make_unique<aec::model::CProject>();
        made->addTopic(L"Architecture");
        return made;
    }();
    return withTopics ? *withTopic : withoutTopic;
}

void checkKeyText(std::uint8_t situation, const std::optional<std::wstring>& text)
{
    const bool hasTopics = (situation & projectHasTopics) != 0;
    const bool groupable = (situation & groupIsGroupable) != 0;
    const aec::model::CPropertyCatalog catalog;
    std::vector<PropertyAssignmentKey> candidates;
    if (groupable)
        candidates.push_back(PropertyAssignmentKey::topic());
    project_explorer::CProjectExplorerGroupingModel model(aec::projectExplorerGroups().front().id, candidates,
                                                          project(hasTopics), catalog);
    const bool topicUsable = groupable && hasTopics;
    if ((situation & startGroupedByTopic) != 0 && topicUsable)
        model.setGroupingKey(PropertyAssignmentKey::topic());

    int signals = 0;
    const auto connection = model.changedSignal().connect([&signals] { ++signals; });
    const PropertyAssignmentKey keyBefore = model.getGroupingKey();
    const int sortOrderBefore = model.getSortOrder();
    const auto expectUnchanged = [&]
    {
        FUZZ_CHECK(model.getGroupingKey() == keyBefore);
        FUZZ_CHECK(model.getSortOrder() == sortOrderBefore);
        FUZZ_CHECK(signals == 0);
    };

    const std::optional<PropertyAssignmentKey> spelled =
        text ? spelledKey(*text) : std::optional(PropertyAssignmentKey::noGrouping());
    const bool usable = spelled && (*spelled == PropertyAssignmentKey::noGrouping() ||
                                    (topicUsable && *spelled == PropertyAssignmentKey::topic()));
    try
    {
        model.setGroupingKeyText(text);
    }
    catch (const std::bad_optional_access&)
    {
        FUZZ_CHECK(!spelled);
        expectUnchanged();
        return;
    }
    catch (const common::EPreconditionViolation& violation)
    {
        FUZZ_CHECK(std::string_view(violation.what())
                       .find("ProjectExplorerLib/ProjectExplorerLib/ProjectExplorerGroupingModel.cpp(") !=
                   std::string_view::npos);
        FUZZ_CHECK(spelled && !usable);
        expectUnchanged();
        return;
    }
    FUZZ_CHECK(usable);
    FUZZ_CHECK(model.getGroupingKey() == *spelled);
    FUZZ_CHECK(signals == (*spelled == keyBefore ? 0 : 1));

    const std::optional<std::wstring> readBack = model.getGroupingKeyText();
    FUZZ_CHECK(readBack.has_value() == (*spelled != PropertyAssignmentKey::noGrouping()));
    FUZZ_CHECK(!readBack || *readBack == canonicalText(*spelled));

    const int signalsBefore = signals;
    model.setGroupingKeyText(readBack);
    FUZZ_CHECK(model.getGroupingKey() == *spelled);
    FUZZ_CHECK(signals == signalsBefore);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    return fuzz::runOneInput(
        [&]
        {
            FuzzedDataProvider input(data, size);
            const auto situation = input.ConsumeIntegral<std::uint8_t>();
            const std::string bytes = input.ConsumeRemainingBytesAsString();
            checkKeyText(situation, (situation & textIsAbsent) != 0
                                        ? std::nullopt
                                        : std::optional(fuzz::widenFuzzInput(bytes)));
        });
}
