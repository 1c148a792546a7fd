#include "locations.h"

#include "app.h"
#include "launch.h"
#include "table_order.h"

namespace orvane {

static_assert(InEnumOrder(kFileChoices, &FileChoice::which));

bool ChooseIntoSetting(App &app, Choice which) {
    const FileChoice &choice = kFileChoices[static_cast<std::size_t>(which)];
    std::wstring &setting = app.settings.*choice.setting;
    const auto chosen = app.prompts.chooseFile({.title = choice.title, .filter = choice.filter, .preset = setting});
    if (!chosen || chosen->empty())
        return false;
    setting = *chosen;
    return true;
}

bool SameForAll(App &app) {
    Settings &s = app.settings;
    if (s.WordPath.empty() || !app.files.fileExists(s.WordPath)) {
        app.prompts.showMessage(L"Location for MS Word invalid or empty.", kProgramTitle, MessageIcon::Exclamation,
                                MessageButtons::Ok);
        return false;
    }
    const std::wstring folder = s.WordPath.substr(0, s.WordPath.rfind(L'\\') + 1);
    s.ExcelPath = folder + L"EXCEL.EXE";
    s.PowerPointPath = folder + L"POWERPNT.EXE";
    s.PublisherPath = folder + L"MSPUB.EXE";
    s.AccessPath = folder + L"MSACCESS.EXE";
    return true;
}

bool StartYourProgram(App &app) {
    const std::wstring &program = app.settings.YourProgram;
    if (program.empty() || !app.files.fileExists(program)) {
        app.prompts.showMessage(L"Cannot find this program:\r\n\r\n" + program, kProgramTitle, MessageIcon::Exclamation,
                                MessageButtons::Ok);
        return false;
    }
    LaunchWithArgument(app, program, L"");
    return true;
}

} // namespace orvane
