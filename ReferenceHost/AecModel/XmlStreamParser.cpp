#include "AecModel/XmlStreamParser.h"

#include "Common/Exception.h"

#include <expat.h>
#include <fmt/format.h>
#include <limits>

namespace aec::model
{

CXmlStreamParser::CXmlStreamParser() : parser_(XML_ParserCreateNS(nullptr, ' '), &XML_ParserFree)
{
    if (!parser_)
        throw std::bad_alloc();
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(
        parser_.get(),
        [](void* self, const XML_Char* name, const XML_Char** attributes)
        { guarded(self, [&](CXmlStreamParser& parser) { parser.onStart(localName(name), attributes); }); },
        [](void* self, const XML_Char* name)
        { guarded(self, [&](CXmlStreamParser& parser) { parser.onEnd(localName(name)); }); });
    XML_SetCharacterDataHandler(
        parser_.get(),
        [](void* self, const XML_Char* text, int length)
        {
            guarded(self, [&](CXmlStreamParser& parser)
                    { parser.onText(std::string_view(text, static_cast<std::size_t>(length))); });
        });
}

CXmlStreamParser::~CXmlStreamParser() = default;

template <typename Handler>
void CXmlStreamParser::guarded(void* self, const Handler& handler) noexcept
{
    CXmlStreamParser& parser = *static_cast<CXmlStreamParser*>(self);
    try
    {
        handler(parser);
    }
    catch (...)
    {
        parser.failure_ = std::current_exception();
        parser.stop();
    }
}

void CXmlStreamParser::stop() noexcept
{
    if (!stopped_)
        XML_StopParser(parser_.get(), XML_FALSE);
    stopped_ = true;
}

void CXmlStreamParser::parse(std::string_view chunk, bool last)
{
    if (stopped_)
        return;
    while (chunk.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
    {
        parse(chunk.substr(0, std::numeric_limits<int>::max()), false);
        chunk.remove_prefix(std::numeric_limits<int>::max());
    }
    const XML_Status status =
        XML_Parse(parser_.get(), chunk.data(), static_cast<int>(chunk.size()), last ? 1 : 0);
    if (failure_)
        std::rethrow_exception(failure_);
    if (status == XML_STATUS_ERROR && !stopped_)
        throw common::EException(fmt::format("the spreadsheet is damaged ({} at line {})",
                                             XML_ErrorString(XML_GetErrorCode(parser_.get())),
                                             XML_GetCurrentLineNumber(parser_.get())));
}

const char* CXmlStreamParser::attribute(const char** attributes, std::string_view name) noexcept
{
    for (; attributes[0] != nullptr; attributes += 2)
        if (localName(attributes[0]) == name)
            return attributes[1];
    return nullptr;
}

std::string_view CXmlStreamParser::localName(const char* name) noexcept
{
    const std::string_view full = name;
    const std::size_t space = full.rfind(' ');
    return space == std::string_view::npos ? full : full.substr(space + 1);
}

} // namespace aec::model
