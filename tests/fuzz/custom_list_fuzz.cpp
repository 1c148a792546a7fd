// The custom program list as read from disk: the table it gives, saved and read
// back, is the same table and the same file.
#include "app.h"
#include "fuzz.h"
#include "program_list.h"

using namespace orvane;

static const std::wstring kList = L"C:\\Lists\\My.lst";

static CustomProgramTable Load(testing::FakeSystem &sys) {
    App app(sys);
    app.settings.CustomListFile = kList;
    CustomProgramTable table;
    FUZZ_CHECK(LoadCustomList(app, table) && sys.messages.empty());
    return table;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    testing::FakeSystem sys;
    sys.addFile(kList, fuzz::Bytes(data, size));
    CustomProgramTable table = Load(sys);
    const std::wstring text = FormatCustomList(table);
    // Every line now names a file that exists, so none is swapped for its Program Files twin on the way back.
    testing::FakeSystem saved;
    for (const auto *column : {&table.DisplayNames, &table.ProgramPaths, &table.StartupFolders})
        for (const std::wstring &line : *column)
            saved.addFile(line);
    saved.addFile(kList, saved.toAnsi(text));
    CustomProgramTable back = Load(saved);
    FUZZ_CHECK(back == table && FormatCustomList(back) == text);
    return 0;
}
