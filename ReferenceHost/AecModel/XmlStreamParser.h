#pragma once

#include <exception>
#include <memory>
#include <string_view>

struct XML_ParserStruct;

namespace aec::model
{

// Reads XML as a stream of events through expat, chunk by chunk, so that the sheets of large
// spreadsheets are never held whole. Element and attribute names come without their namespace:
// spreadsheet producers differ in the prefixes they use, never in the local names.
class CXmlStreamParser
{
public:
    CXmlStreamParser();
    virtual ~CXmlStreamParser();
    CXmlStreamParser(const CXmlStreamParser&) = delete;
    CXmlStreamParser& operator=(const CXmlStreamParser&) = delete;

    // Throws common::EException "the spreadsheet is damaged (...)" when the XML is not well formed.
    void parse(std::string_view chunk, bool last);
    // Whether the handler has seen all it needs (see stop).
    bool stopped() const noexcept { return stopped_; }

protected:
    // Attributes come as name, value, name, value, ..., null.
    virtual void onStart(std::string_view name, const char** attributes) = 0;
    virtual void onEnd(std::string_view name) = 0;
    virtual void onText(std::string_view text) = 0;

    // The value of the attribute with this local name, or nothing.
    static const char* attribute(const char** attributes, std::string_view name) noexcept;
    // Ends the parse: the rest of the document is not wanted.
    void stop() noexcept;

private:
    static std::string_view localName(const char* name) noexcept;
    // Runs a handler; an exception must not unwind through expat's C frames, so it is kept and
    // thrown again once expat has returned.
    template <typename Handler>
    static void guarded(void* self, const Handler& handler) noexcept;

    std::unique_ptr<XML_ParserStruct, void (*)(XML_ParserStruct*)> parser_;
    std::exception_ptr failure_;
    bool stopped_ = false;
};

} // namespace aec::model
