#include "catalogue.h"

#include "table_order.h"

namespace orvane {

static_assert(InEnumOrder(kSuiteTools, &SuiteTool::tool));

std::wstring BuiltInPath(Tool tool) {
    const SuiteTool &t = SuiteToolOf(tool);
    return std::wstring(kSuiteFolder).append(t.folder).append(L"\\").append(t.program).append(L".exe");
}

} // namespace orvane
