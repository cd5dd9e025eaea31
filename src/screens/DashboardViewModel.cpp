#include "screens/DashboardViewModel.h"

#include <utility>

namespace quillmere {

DashboardViewModel::DashboardViewModel(LocalPersistenceStore& store,
                                       const AppCapabilities& appCapabilities, Clock clock,
                                       QObject* parent)
    : QObject(parent), store_(store), appCapabilities_(appCapabilities), clock_(std::move(clock)) {
}

}  // namespace quillmere
