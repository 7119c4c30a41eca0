#pragma once

#include "AecApp/AecAppApi.h"
#include "AecApp/RegistrationList.h"
#include "aec/Gui.h"

#include <boost/signals2/connection.hpp>
#include <cstdint>
#include <string>

namespace aec
{

class IProjectExplorerGroupingModel;
class ITranslation;

// Binds two drop-down buttons of a panel to one group's grouping model: one chooses the grouping
// criterion (or none), the other the sort order. The criterion button is refilled from the model
// whenever the model changes. The two button callbacks stay registered for the handler's life.
class AECAPP_API CGroupingButtonHandler
{
public:
    // The GUI must be set; it, the translation and the model must outlive the handler. Should a
    // call of the GUI fail, what was registered is taken back.
    CGroupingButtonHandler(std::uint32_t panelId, std::uint32_t groupCriterionButtonId,
                           std::uint32_t sortOrderButtonId, IGui* gui, const ITranslation& translation,
                           IProjectExplorerGroupingModel& model);
    // Stops following the model and unregisters both callbacks; a failing GUI is swallowed.
    ~CGroupingButtonHandler();

    CGroupingButtonHandler(const CGroupingButtonHandler&) = delete;
    CGroupingButtonHandler& operator=(const CGroupingButtonHandler&) = delete;

    // What the destructor does, for an owner that reports a failure: every step is taken, then
    // the first failure passes on.
    void release();

private:
    void refresh();
    IGui::ButtonCallback groupCriterionHandler();
    IGui::ButtonCallback sortOrderHandler();

    std::uint32_t panelId_;
    std::uint32_t groupCriterionButtonId_;
    std::uint32_t sortOrderButtonId_;
    IGui* gui_;
    const ITranslation& translation_;
    IProjectExplorerGroupingModel& model_;
    std::int32_t ascending_ = 1;
    std::int32_t descending_ = 2;
    // Before the connection, which thus goes first: a refresh never runs on a half-released handler.
    CRegistrationList buttonCallbacks_;
    boost::signals2::scoped_connection modelConnection_;
};

} // namespace aec
