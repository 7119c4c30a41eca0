#include "HostServices/HostServices.h"

namespace aec::host
{

CHostServices::CHostServices() : formatter_(sessionManager_) {}

CHostServices::~CHostServices() = default;

} // namespace aec::host
