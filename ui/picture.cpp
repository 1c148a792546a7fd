#include "picture.h"

#include <objidl.h>
#include <olectl.h>
#include <gdiplus.h>

#include <cstring>
#include <memory>

#include "app.h"
#include "wallpaper.h"

namespace orvane::ui {

namespace {

namespace flat = Gdiplus::DllExports;

// The imaging library's flat functions, bound at the first picture: importing
// gdiplus.dll would cost every start.
struct ImagingFunctions {
    decltype(&Gdiplus::GdiplusStartup) startup = nullptr;
    decltype(&Gdiplus::GdiplusShutdown) shutdown = nullptr;
    decltype(&flat::GdipLoadImageFromFile) load = nullptr;
    decltype(&flat::GdipDisposeImage) dispose = nullptr;
    decltype(&flat::GdipGetImageWidth) width = nullptr;
    decltype(&flat::GdipGetImageHeight) height = nullptr;
    decltype(&flat::GdipCreateFromHDC) graphics = nullptr;
    decltype(&flat::GdipDeleteGraphics) deleteGraphics = nullptr;
    decltype(&flat::GdipSetInterpolationMode) interpolation = nullptr;
    decltype(&flat::GdipDrawImageRectRectI) draw = nullptr;

    bool bound() const {
        return startup && shutdown && load && dispose && width && height && graphics && deleteGraphics &&
               interpolation && draw;
    }
};

const ImagingFunctions &Imaging() {
    static const ImagingFunctions functions = [] {
        ImagingFunctions f;
        const auto bind = [](auto &function, const char *name) {
            function = BoundAtFirstUse<std::remove_reference_t<decltype(function)>>(L"gdiplus.dll", name);
        };
        bind(f.startup, "GdiplusStartup");
        bind(f.shutdown, "GdiplusShutdown");
        bind(f.load, "GdipLoadImageFromFile");
        bind(f.dispose, "GdipDisposeImage");
        bind(f.width, "GdipGetImageWidth");
        bind(f.height, "GdipGetImageHeight");
        bind(f.graphics, "GdipCreateFromHDC");
        bind(f.deleteGraphics, "GdipDeleteGraphics");
        bind(f.interpolation, "GdipSetInterpolationMode");
        bind(f.draw, "GdipDrawImageRectRectI");
        return f;
    }();
    return functions;
}

// A bitmap compatible with the screen, filled with the colour, and a drawing
// surface that has it selected while the object lives.
class Canvas {
public:
    Canvas(PixelSize size, COLORREF colour) {
        HDC screen = GetDC(nullptr);
        surface_.reset(CreateCompatibleDC(screen));
        if (size.width > 0 && size.height > 0)
            bitmap_.reset(CreateCompatibleBitmap(screen, size.width, size.height));
        ReleaseDC(nullptr, screen);
        if (!surface_ || !bitmap_)
            return;
        old_ = SelectObject(surface_.get(), bitmap_.get());
        UniqueBrush brush(CreateSolidBrush(colour));
        const HGDIOBJ oldBrush = SelectObject(surface_.get(), brush.get());
        PatBlt(surface_.get(), 0, 0, size.width, size.height, PATCOPY);
        SelectObject(surface_.get(), oldBrush);
    }
    Canvas(const Canvas &) = delete;
    Canvas &operator=(const Canvas &) = delete;
    ~Canvas() {
        if (old_)
            SelectObject(surface_.get(), old_);
    }

    HDC dc() const {
        return old_ ? surface_.get() : nullptr;
    }
    // The bitmap, once drawing is done.
    UniqueBitmap finish() {
        if (old_)
            SelectObject(surface_.get(), std::exchange(old_, nullptr));
        return std::move(bitmap_);
    }

private:
    UniqueDC surface_;
    UniqueBitmap bitmap_;
    HGDIOBJ old_ = nullptr;
};

struct ImageDisposal {
    void operator()(Gdiplus::GpImage *image) const {
        Imaging().dispose(image);
    }
};
struct GraphicsDeletion {
    void operator()(Gdiplus::GpGraphics *graphics) const {
        Imaging().deleteGraphics(graphics);
    }
};

// The bytes of a picture for the standard loader: far more than any photograph.
constexpr std::size_t kMostStandardPictureBytes = 256u << 20;

} // namespace

ULONG_PTR StartImaging() {
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input; // version 1, no debug callback
    if (!Imaging().bound() || Imaging().startup(&token, &input, nullptr) != Gdiplus::Ok)
        return 0;
    return token;
}

void StopImaging(ULONG_PTR token) {
    if (token)
        Imaging().shutdown(token);
}

UniqueBitmap LoadScaledPicture(App &app, const std::wstring &path, int &width, int &height, COLORREF background,
                               bool keepAspect) {
    const auto failed = [&] {
        app.prompts.showMessage(PictureErrorText(path), kImagingTitle, MessageIcon::None, MessageButtons::Ok);
        return UniqueBitmap();
    };
    // A PNG says its size up front: one too large is refused before it is decoded.
    const auto head = app.files.readFile(path, 24);
    const auto declared = head ? PngSize(*head) : std::nullopt;
    Gdiplus::GpImage *loaded = nullptr;
    if ((declared && TooLargeToDecode(*declared)) || !Imaging().bound() ||
        Imaging().load(path.c_str(), &loaded) != Gdiplus::Ok || !loaded)
        return failed();
    const std::unique_ptr<Gdiplus::GpImage, ImageDisposal> image(loaded);
    UINT imageWidth = 0, imageHeight = 0;
    Imaging().width(image.get(), &imageWidth);
    Imaging().height(image.get(), &imageHeight);
    const PixelSize natural{static_cast<int>(imageWidth), static_cast<int>(imageHeight)};
    if (natural.width <= 0 || natural.height <= 0 || TooLargeToDecode(natural))
        return failed();

    const PixelSize size = RequestedSize({width, height}, natural);
    width = size.width;
    height = size.height;
    Canvas canvas(size, background);
    Gdiplus::GpGraphics *created = nullptr;
    if (!canvas.dc() || Imaging().graphics(canvas.dc(), &created) != Gdiplus::Ok)
        return canvas.finish();
    const std::unique_ptr<Gdiplus::GpGraphics, GraphicsDeletion> graphics(created);
    Imaging().interpolation(graphics.get(), Gdiplus::InterpolationModeHighQualityBicubic);
    const PixelRect to = keepAspect ? FitKeepingAspect(natural, size) : PixelRect{0, 0, size.width, size.height};
    Imaging().draw(graphics.get(), image.get(), to.left, to.top, to.width, to.height, 0, 0, natural.width,
                   natural.height, Gdiplus::UnitPixel, nullptr, nullptr, nullptr);
    return canvas.finish();
}

UniqueBitmap LoadStandardPicture(App &app, const std::wstring &path, PixelSize &natural) {
    static const auto createStream =
        BoundAtFirstUse<HRESULT(WINAPI *)(HGLOBAL, BOOL, IStream **)>(L"ole32.dll", "CreateStreamOnHGlobal");
    static const auto loadPicture =
        BoundAtFirstUse<HRESULT(WINAPI *)(IStream *, LONG, BOOL, REFIID, void **)>(L"oleaut32.dll", "OleLoadPicture");
    const auto bytes = app.files.readFile(path, kMostStandardPictureBytes);
    if (!bytes || bytes->empty() || !createStream || !loadPicture)
        return {};
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes->size());
    if (!memory)
        return {};
    std::memcpy(GlobalLock(memory), bytes->data(), bytes->size());
    GlobalUnlock(memory);
    IStream *opened = nullptr;
    if (FAILED(createStream(memory, TRUE, &opened))) {
        GlobalFree(memory);
        return {};
    }
    const ComPointer<IStream> stream(opened);
    void *created = nullptr;
    if (FAILED(loadPicture(stream.get(), static_cast<LONG>(bytes->size()), FALSE, IID_IPicture, &created)))
        return {};
    const ComPointer<IPicture> picture(static_cast<IPicture *>(created));
    OLE_XSIZE_HIMETRIC hmWidth = 0;
    OLE_YSIZE_HIMETRIC hmHeight = 0;
    picture->get_Width(&hmWidth);
    picture->get_Height(&hmHeight);
    HDC screen = GetDC(nullptr);
    natural = {MulDiv(hmWidth, GetDeviceCaps(screen, LOGPIXELSX), 2540),
               MulDiv(hmHeight, GetDeviceCaps(screen, LOGPIXELSY), 2540)};
    ReleaseDC(nullptr, screen);
    if (natural.width <= 0 || natural.height <= 0 || TooLargeToDecode(natural))
        return {};
    Canvas canvas(natural, RGB(255, 255, 255));
    if (canvas.dc())
        picture->Render(canvas.dc(), 0, 0, natural.width, natural.height, 0, hmHeight, hmWidth, -hmHeight, nullptr);
    return canvas.finish();
}

} // namespace orvane::ui
