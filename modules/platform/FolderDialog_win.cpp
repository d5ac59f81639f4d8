// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/FolderDialog.h"

#include <QtCore/QScopeGuard>

#include <windows.h>

#include <shlwapi.h>
#include <shobjidl.h>

#include <memory>

namespace ZyxPlatform {

namespace {

constexpr int defaultPushButton = 1;

/*! COM in the thread of the first dialog, until the library is unloaded. */
class ComOwner
{
    Q_DISABLE_COPY_MOVE(ComOwner)

public:
    ComOwner()
        : m_isSetUp(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)))
    {
    }

    ~ComOwner()
    {
        if (m_isSetUp) {
            CoUninitialize();
        }
    }

    bool isSetUp() const
    {
        return m_isSetUp;
    }

private:
    bool m_isSetUp;
};

struct Release
{
    void operator()(IUnknown *object) const
    {
        object->Release();
    }
};

template <typename Interface>
using ComPointer = std::unique_ptr<Interface, Release>;

// The state of the one dialog that can be open.
WNDPROC oldButtonProcedure = nullptr; // set while the button is subclassed
HWND buttonWindow = nullptr;
HWND dialogWindow = nullptr;
PWSTR selectionPath = nullptr;
PWSTR folderPath = nullptr;
bool accepted = false; // the mouse was released on the button, with something to answer

LRESULT CALLBACK buttonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool isRelease = message == WM_LBUTTONUP && window == buttonWindow;
    const bool hasAnswer = selectionPath != nullptr || folderPath != nullptr;
    if (!isRelease || dialogWindow == nullptr || !hasAnswer) {
        return CallWindowProcW(oldButtonProcedure, window, message, wParam, lParam);
    }
    accepted = true;
    SendMessageW(dialogWindow, WM_CLOSE, 0, 0);
    return 0;
}

void subclassButton(IFileDialog *dialog)
{
    if (oldButtonProcedure != nullptr) {
        return;
    }
    IOleWindow *found = nullptr;
    if (FAILED(dialog->QueryInterface(IID_IOleWindow, reinterpret_cast<void **>(&found)))) {
        return;
    }
    const ComPointer<IOleWindow> oleWindow(found);
    if (FAILED(oleWindow->GetWindow(&dialogWindow))) {
        return;
    }
    const HWND button = GetDlgItem(dialogWindow, defaultPushButton);
    if (reinterpret_cast<LONG_PTR>(button) == -1) {
        return;
    }
    buttonWindow = button;
    oldButtonProcedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(button, GWLP_WNDPROC));
    SetWindowLongPtrW(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&buttonProcedure));
}

/*! Puts the path of \a item in the place of \a path: null if it has none, being no file and no folder. */
void storePath(const ComPointer<IShellItem> &item, PWSTR &path)
{
    CoTaskMemFree(path);
    path = nullptr;
    item->GetDisplayName(SIGDN_FILESYSPATH, &path);
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_GCC("-Wnon-virtual-dtor") // interfaces of COM have no virtual destructors
class CDialogEventHandler final : public IFileDialogEvents
{
    Q_DISABLE_COPY_MOVE(CDialogEventHandler)

public:
    CDialogEventHandler() = default;

    STDMETHODIMP QueryInterface(REFIID id, void **object) override
    {
        static const QITAB interfaces[] = {QITABENT(CDialogEventHandler, IFileDialogEvents), {nullptr, 0}};
        return QISearch(this, interfaces, id, object);
    }

    STDMETHODIMP_(ULONG) AddRef() override
    {
        return ULONG(InterlockedIncrement(&m_references));
    }

    STDMETHODIMP_(ULONG) Release() override
    {
        const LONG references = InterlockedDecrement(&m_references);
        if (references == 0) {
            delete this;
        }
        return ULONG(references);
    }

    // Enter and the keyboard on the button come here: only the mouse accepts.
    STDMETHODIMP OnFileOk(IFileDialog * /*dialog*/) override
    {
        return accepted ? S_OK : S_FALSE;
    }

    STDMETHODIMP OnFolderChanging(IFileDialog * /*dialog*/, IShellItem * /*folder*/) override
    {
        return S_OK;
    }

    STDMETHODIMP OnFolderChange(IFileDialog *dialog) override
    {
        IShellItem *folder = nullptr;
        if (SUCCEEDED(dialog->GetFolder(&folder))) {
            storePath(ComPointer<IShellItem>(folder), folderPath);
        }
        subclassButton(dialog);
        return S_OK;
    }

    STDMETHODIMP OnSelectionChange(IFileDialog *dialog) override
    {
        IShellItem *selection = nullptr;
        if (SUCCEEDED(dialog->GetCurrentSelection(&selection))) {
            storePath(ComPointer<IShellItem>(selection), selectionPath);
        }
        subclassButton(dialog);
        return S_OK;
    }

    STDMETHODIMP OnShareViolation(IFileDialog * /*dialog*/, IShellItem * /*item*/,
                                  FDE_SHAREVIOLATION_RESPONSE * /*response*/) override
    {
        return S_OK;
    }

    STDMETHODIMP OnTypeChange(IFileDialog * /*dialog*/) override
    {
        return S_OK;
    }

    STDMETHODIMP OnOverwrite(IFileDialog * /*dialog*/, IShellItem * /*item*/,
                             FDE_OVERWRITE_RESPONSE * /*response*/) override
    {
        return S_OK;
    }

private:
    ~CDialogEventHandler() = default;

    LONG m_references = 1;
};
QT_WARNING_POP

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

bool setTexts(IFileDialog *dialog, const FolderQuestion &question)
{
    const COMDLG_FILTERSPEC filter = {wide(question.filterName), wide(question.filterSpecification)};
    dialog->SetFileTypes(1, &filter); // a dialog that shows all files will do
    if (!question.buttonLabel.isEmpty() && FAILED(dialog->SetOkButtonLabel(wide(question.buttonLabel)))) {
        return false;
    }
    return question.title.isEmpty() || SUCCEEDED(dialog->SetTitle(wide(question.title)));
}

bool setFolder(IFileDialog *dialog, const QString &directory)
{
    IShellItem *found = nullptr;
    if (directory.isEmpty()
        || FAILED(
            SHCreateItemFromParsingName(wide(directory), nullptr, IID_IShellItem, reinterpret_cast<void **>(&found)))) {
        return true; // it opens at a place of its own
    }
    const ComPointer<IShellItem> folder(found);
    return SUCCEEDED(dialog->SetFolder(folder.get()));
}

/*! Both from the value read: the second call takes the first flag away again, so that places without a path show. */
bool setOptions(IFileDialog *dialog)
{
    FILEOPENDIALOGOPTIONS options = 0;
    return SUCCEEDED(dialog->GetOptions(&options)) && SUCCEEDED(dialog->SetOptions(options | FOS_FORCEFILESYSTEM))
        && SUCCEEDED(dialog->SetOptions(options | FOS_PICKFOLDERS));
}

/*! The selection goes before the folder. Makes the state ready for the next dialog. */
QString takeAnswer()
{
    QString answer;
    for (PWSTR *path : {&folderPath, &selectionPath}) {
        if (*path != nullptr && accepted) {
            answer = QString::fromWCharArray(*path);
        }
        CoTaskMemFree(*path);
        *path = nullptr;
    }
    oldButtonProcedure = nullptr;
    accepted = false;
    return answer;
}

QString answerOf(IFileDialog *dialog, const FolderQuestion &question)
{
    const ComPointer<IUnknown> handler(new CDialogEventHandler);
    IFileDialogEvents *found = nullptr;
    if (FAILED(handler->QueryInterface(IID_IFileDialogEvents, reinterpret_cast<void **>(&found)))) {
        return {};
    }
    const ComPointer<IFileDialogEvents> events(found);
    DWORD cookie = 0;
    if (FAILED(dialog->Advise(events.get(), &cookie))) {
        return {};
    }
    const auto unadvise = qScopeGuard([dialog, cookie] { dialog->Unadvise(cookie); });
    if (!setTexts(dialog, question) || !setFolder(dialog, question.directory) || !setOptions(dialog)) {
        return {};
    }
    dialog->Show(reinterpret_cast<HWND>(question.owner)); // an accepted dialog is a cancelled one to it
    return takeAnswer();
}

} // namespace

std::optional<QString> chooseInSystemDialog(const FolderQuestion &question)
{
    static const ComOwner com;
    if (!com.isSetUp()) {
        return QString();
    }
    IFileDialog *dialog = nullptr;
    if (FAILED(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog,
                                reinterpret_cast<void **>(&dialog)))) {
        return QString();
    }
    return answerOf(ComPointer<IFileDialog>(dialog).get(), question);
}

} // namespace ZyxPlatform
