#include "BindingAction.h"

#include "AecModel/Project.h"
#include "AecModel/SampleProject.h"
#include "SessionUnderFaults.h"
#include "aec/Activity.h"

namespace aec::fault_injection::test
{

void PrintTo(const BindingAction& action, std::ostream* stream)
{
    *stream << action.name;
}

const std::vector<BindingAction>& bindingActions()
{
    static const std::vector<BindingAction> actions{
        {"open another project", [](CSessionUnderFaults&) {},
         [](CSessionUnderFaults& world)
         {
             world.session.open(model::buildSampleProject());
         }},
        {"close the project", [](CSessionUnderFaults&) {},
         [](CSessionUnderFaults& world)
         {
             world.session.close();
         }},
        {"deactivate the explorer", [](CSessionUnderFaults&) {},
         [](CSessionUnderFaults& world)
         {
             world.session.getActivity().deactivate();
         }},
        {"activate the explorer again",
         [](CSessionUnderFaults& world) { world.session.getActivity().deactivate(); },
         [](CSessionUnderFaults& world)
         {
             world.session.getActivity().activate();
         }},
    };
    return actions;
}

} // namespace aec::fault_injection::test
