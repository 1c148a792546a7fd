// What the program asks and tells the user: message boxes, file dialogs, the
// clipboard and the beep.
#pragma once

#include <optional>
#include <string>

namespace orvane {

enum class MessageIcon {
    None,
    Critical,
    Exclamation,
    Question,
    Information
};
// YesNoDefaultNo: Yes and No, with No pressed by Enter.
enum class MessageButtons {
    Ok,
    OkCancel,
    YesNo,
    YesNoCancel,
    YesNoDefaultNo
};
enum class MessageAnswer {
    Ok,
    Cancel,
    Yes,
    No
};

// The platform's file-open or file-save dialog. The filter is written
// "Text|*.txt|All|*.*"; the first filter is selected.
struct FileRequest {
    std::wstring title;
    std::wstring filter;
    std::wstring preset{}; // the file name shown at first
    std::wstring folder{}; // where it starts; empty leaves that to the system
    bool save = false;
    std::wstring defaultExtension{}; // added to a typed name without one, without the dot
};

class Prompts {
public:
    virtual ~Prompts() = default;

    virtual MessageAnswer showMessage(const std::wstring &text, const std::wstring &caption, MessageIcon icon,
                                      MessageButtons buttons) = 0;
    // The chosen file, or nothing when the dialog was cancelled or failed.
    virtual std::optional<std::wstring> chooseFile(const FileRequest &request) = 0;
    virtual bool setClipboardText(const std::wstring &text) = 0;
    virtual void beep() = 0;
};

} // namespace orvane
