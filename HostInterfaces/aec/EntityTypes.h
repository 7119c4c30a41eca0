#pragma once

#include "aec/EntityTypeId.h"

namespace aec::entity_types
{

// The entity types of the host model that the explorer shows. Fixed constants, made once on
// first use.
#define AEC_DETAIL_ENTITY_TYPE(function, text)                                                          \
    inline const EntityTypeId& function()                                                               \
    {                                                                                                   \
        static const EntityTypeId type(common::UUID::parse(std::string_view(text)));                   \
        return type;                                                                                    \
    }

AEC_DETAIL_ENTITY_TYPE(sheet, "ff100060-8a50-40dc-811b-c70621e9bccb")
AEC_DETAIL_ENTITY_TYPE(table, "ff47372f-698a-4c15-8a9b-d2041ab0adc7")
AEC_DETAIL_ENTITY_TYPE(assembly, "49067e3d-c98a-46dd-abf5-c35e3d068e71")
AEC_DETAIL_ENTITY_TYPE(material, "a087354a-e06f-49ee-a6b6-84fef6b8d2cb")
AEC_DETAIL_ENTITY_TYPE(doorStyle, "774e0cd7-dec3-429b-9da2-c9d468cc249f")
AEC_DETAIL_ENTITY_TYPE(windowStyle, "9de3f28e-6cfe-4f27-aa99-8a2f2878a15f")
AEC_DETAIL_ENTITY_TYPE(reinforcementStyle, "ef75d15f-fea3-4480-b5a1-4371a186ea76")
AEC_DETAIL_ENTITY_TYPE(topic, "dd750eb9-e260-4a94-b8f8-fa4a2a59e7ba")
AEC_DETAIL_ENTITY_TYPE(linkedModel, "066f9ab0-25d3-4e73-aea4-edef43d9f4b0")
AEC_DETAIL_ENTITY_TYPE(image, "728be7bc-da2b-4c4a-9f0b-33beeb54e334")

#undef AEC_DETAIL_ENTITY_TYPE

} // namespace aec::entity_types
