// orvinel-beside TOOL: what the start menu of Windows offers beside the program, and what a double click on a
// tool does there: the tool works on the folder that it lies in, without a terminal. Pages are made anew in
// the folder Pages, and opened; what the other tools print is shown in a box.

#include "app/modLanguage.h"
#include "base/FileDisk.h"
#include "tools/CommandLine.h"
#include "tools/ToolText.h"
#include "world/World.h"

#include <QDir>
#include <QProcess>

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 quietTime = 1000; // milliseconds before the waiting window appears
constexpr int pause = 30;          // between two looks at the tool
constexpr int longestText = 40;    // lines that a box shows
constexpr int widthAt96 = 340;     // pixels at the usual resolution
constexpr int heightAt96 = 72;
constexpr int marginAt96 = 14;

const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

struct Errand {
    QString tool;
    QStringList words;
    QString page{}; // opened afterwards; empty: what the tool has printed is shown
};

std::optional<Errand> errandOf(const QString& what, const QString& folder) {
    const QString pages = folder + u"Pages/"_s;
    if (what == u"report")
        return Errand{u"orvinel-report"_s,
                      {folder, u"--format"_s, u"html"_s, u"--output"_s, pages + u"progress.html"_s},
                      pages + u"progress.html"_s};
    if (what == u"atlas")
        return Errand{u"orvinel-atlas"_s, {folder, pages + u"Atlas"_s}, pages + u"Atlas/index.html"_s};
    if (what == u"backup")
        return Errand{u"orvinel-backup"_s, {folder, u"save"_s}};
    if (what == u"check")
        return Errand{u"orvinel-check"_s, {folder}};
    if (what == u"mark" || what == u"notes")
        return Errand{u"orvinel-"_s + what, {u"--help"_s}};
    return std::nullopt;
}

void tell(const QString& text, UINT icon) {
    MessageBoxW(nullptr, wide(text), L"Orvinel", MB_OK | MB_SETFOREGROUND | icon);
}

// A small window with a moving bar. It can be closed, which ends the waiting.
class WaitingWindow {
  public:
    explicit WaitingWindow(const QString& text) {
        const int dpi = static_cast<int>(GetDpiForSystem());
        const auto scaled = [dpi](int pixels) { return MulDiv(pixels, dpi, 96); };
        RECT frame = {0, 0, scaled(widthAt96), scaled(heightAt96)};
        AdjustWindowRectEx(&frame, style, FALSE, 0);
        const int width = frame.right - frame.left;
        const int height = frame.bottom - frame.top;
        HINSTANCE program = GetModuleHandleW(nullptr);
        // The class of the system's own boxes: nothing to be registered, and its background fits the bar.
        window_ = CreateWindowExW(
            0, L"#32770", L"Orvinel", style, (GetSystemMetrics(SM_CXSCREEN) - width) / 2,
            (GetSystemMetrics(SM_CYSCREEN) - height) / 2, width, height, nullptr, nullptr, program, nullptr);
        SendMessageW(window_, WM_SETICON, ICON_BIG,
                     reinterpret_cast<LPARAM>(LoadIconW(program, MAKEINTRESOURCEW(1))));
        fill(text, program, scaled(widthAt96 - 2 * marginAt96), scaled(marginAt96));
        ShowWindow(window_, SW_SHOW);
    }
    ~WaitingWindow() {
        DestroyWindow(window_);
        DeleteObject(font_);
    }
    WaitingWindow(const WaitingWindow&) = delete;
    WaitingWindow& operator=(const WaitingWindow&) = delete;

    // Lets the window live. False once it has been closed.
    bool goOn() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            const bool escape = message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
            const bool closed = message.message == WM_SYSCOMMAND && (message.wParam & 0xFFF0) == SC_CLOSE;
            if (escape || closed)
                return false;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        return IsWindowVisible(window_) != 0;
    }

  private:
    static constexpr DWORD style = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;

    void fill(const QString& text, HINSTANCE program, int width, int margin) {
        NONCLIENTMETRICSW metrics = {};
        metrics.cbSize = sizeof metrics;
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        font_ = CreateFontIndirectW(&metrics.lfMessageFont);
        HWND line = CreateWindowExW(0, L"STATIC", wide(text), WS_CHILD | WS_VISIBLE, margin, margin, width,
                                    margin * 3 / 2, window_, nullptr, program, nullptr);
        SendMessageW(line, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
        HWND bar = CreateWindowExW(0, PROGRESS_CLASSW, L"", WS_CHILD | WS_VISIBLE | PBS_MARQUEE, margin,
                                   margin * 3, width, margin * 5 / 4, window_, nullptr, program, nullptr);
        SendMessageW(bar, PBM_SETMARQUEE, TRUE, pause);
    }

    HWND window_ = nullptr;
    HFONT font_ = nullptr;
};

// False when the player has closed the window: the tool was ended, and what it makes appears whole or not at
// all.
bool waitFor(QProcess& tool, const QString& text) {
    QElapsedTimer clock;
    clock.start();
    std::optional<WaitingWindow> window;
    while (!tool.waitForFinished(pause) && tool.state() != QProcess::NotRunning) {
        if (!window && clock.elapsed() >= quietTime)
            window.emplace(text);
        if (window && !window->goOn()) {
            tool.kill();
            tool.waitForFinished();
            return false;
        }
    }
    return true;
}

QString shortened(const QString& text) {
    QStringList lines = text.trimmed().split(u'\n');
    if (lines.size() > longestText)
        lines = lines.first(longestText) << u"..."_s;
    return lines.join(u'\n');
}

int run(const Errand& errand, const QString& folder, const QString& waiting) {
    if (!errand.page.isEmpty())
        QDir(folder).mkdir(u"Pages"_s); // when it cannot be made, the tool says so
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(folder + errand.tool + u".exe"_s, errand.words);
    if (!tool.waitForStarted()) {
        tell(errand.tool + u": "_s + tool.errorString(), MB_ICONERROR);
        return ExitUnusable;
    }
    if (!waitFor(tool, waiting))
        return ExitUnusable;
    const QString said = shortened(QString::fromUtf8(tool.readAll()));
    const bool good = tool.exitStatus() == QProcess::NormalExit && tool.exitCode() < ExitUnusable;
    if (!good || errand.page.isEmpty()) {
        tell(said.isEmpty() ? u"OK"_s : said, good ? MB_ICONINFORMATION : MB_ICONERROR);
        return good ? ExitGood : ExitUnusable;
    }
    ShellExecuteW(nullptr, nullptr, wide(QDir::toNativeSeparators(errand.page)), nullptr, nullptr,
                  SW_SHOWNORMAL);
    return ExitGood;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::applicationDirPath() + u'/';
    const auto errand = errandOf(arguments(argc, argv).value(0), folder);
    if (!errand)
        return ExitUnusable;
    const FileDisk disk(folder);
    World world;
    world.AppPath = folder;
    LoadLanguage(world, disk);
    return run(*errand, folder, toolText(world, ToolText::Waiting));
}
