#include "start/Screen.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double startedMs = 2500; // a program has painted its windows by then, and everything that waits
constexpr double quietMs = 120;    // without a change: all of an event's pixels are there
constexpr double longestMs = 450;  // a text cursor blinks behind it
constexpr int dragSteps = 50;
constexpr int dragStep = 10; // pixels, both ways

struct Place {
    int x;
    int y;
};

struct Order {
    std::vector<Place> clicks; // that give the keyboard to the search field
    Place map;                 // in the map, with room for the drag to the left and up
    std::vector<Place> jump;   // the combo box of the campaigns, and the list's entry; empty: no jump
    std::vector<char*> command;
};

double since(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void rest(double ms) {
    std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(ms));
}

// Sends what a player's hands do, and sees on the screen when it has been answered.
class Hands {
  public:
    Hands(Display* display, const bench::Screen& screen) : display_(display), screen_(screen) {}

    void pointAt(Place at) {
        XTestFakeMotionEvent(display_, -1, at.x, at.y, CurrentTime);
        XFlush(display_);
    }
    void button(bool down) {
        XTestFakeButtonEvent(display_, 1, down, CurrentTime);
        XFlush(display_);
    }
    void key(KeySym sign) {
        const unsigned code = XKeysymToKeycode(display_, sign);
        XTestFakeKeyEvent(display_, code, True, CurrentTime);
        XTestFakeKeyEvent(display_, code, False, CurrentTime);
        XFlush(display_);
    }
    void press() {
        button(true);
        button(false);
    }
    // Without a window manager nobody else gives a window the keyboard.
    void click(Place at) {
        pointAt(at);
        rest(50);
        Window root, window;
        int x, y;
        unsigned held;
        XQueryPointer(display_, DefaultRootWindow(display_), &root, &window, &x, &y, &x, &y, &held);
        if (window != None)
            XSetInputFocus(display_, window, RevertToPointerRoot, CurrentTime);
        press();
        rest(500);
    }
    // From sending an event to the last pixel that it changed, milliseconds; below 0: it changed none.
    template <typename Send>
    double answered(Send send) {
        std::uint64_t print = screen_.fingerprint();
        const Clock::time_point start = Clock::now();
        double last = -1;
        send();
        for (double now = 0; now < longestMs && now - std::max(last, 0.0) < quietMs; now = since(start)) {
            const std::uint64_t seen = screen_.fingerprint();
            if (seen != print)
                last = since(start);
            print = seen;
        }
        return last;
    }

  private:
    Display* display_;
    const bench::Screen& screen_;
};

void tell(std::size_t who, const char* what, double ms) {
    if (ms >= 0)
        std::printf("%zu %s %.2f\n", who, what, ms);
    std::fflush(stdout);
}

void type(Hands& hands, std::size_t who, const std::vector<Place>& clicks) {
    for (const Place at : clicks)
        hands.click(at);
    for (const KeySym sign : {XK_a, XK_r, XK_BackSpace, XK_BackSpace})
        tell(who, "typed", hands.answered([&] { hands.key(sign); }));
}

void drag(Hands& hands, std::size_t who, Place from) {
    hands.pointAt(from);
    hands.button(true);
    rest(200);
    for (int i = 1; i <= dragSteps; ++i)
        tell(who, "dragged", hands.answered([&] {
            hands.pointAt({from.x - i * dragStep, from.y - i * dragStep});
        }));
    hands.button(false);
}

// With all campaigns listed, an entry of another region than the one shown.
void jump(Hands& hands, std::size_t who, const std::vector<Place>& places) {
    hands.click(places[0]);
    for (const KeySym sign : {XK_Home, XK_Return}) {
        hands.key(sign);
        rest(500);
    }
    hands.pointAt(places[1]);
    rest(200);
    tell(who, "clicked", hands.answered([&] { hands.press(); }));
}

void touch(Hands& hands, std::size_t who, const Order& order) {
    pid_t program = 0;
    if (posix_spawn(&program, order.command[0], nullptr, nullptr, order.command.data(), environ) != 0)
        return;
    rest(startedMs);
    type(hands, who, order.clicks);
    drag(hands, who, order.map);
    if (!order.jump.empty())
        jump(hands, who, order.jump);
    kill(program, SIGTERM);
    waitpid(program, nullptr, 0);
    rest(500);
}

bool readPlaces(const std::string& text, std::vector<Place>& places) {
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, ';');) {
        Place& at = places.emplace_back();
        if (std::sscanf(part.c_str(), "%d,%d", &at.x, &at.y) != 2)
            return false;
    }
    return !places.empty();
}

// CLICKS MAP JUMP COMMAND...
bool readOrder(const std::vector<char*>& words, Order& order) {
    std::vector<Place> map;
    if (words.size() < 4 || !readPlaces(words[0], order.clicks) || !readPlaces(words[1], map))
        return false;
    if (std::strcmp(words[2], "-") != 0 && (!readPlaces(words[2], order.jump) || order.jump.size() != 2))
        return false;
    order.map = map.front();
    order.command.assign(words.begin() + 3, words.end());
    order.command.push_back(nullptr);
    return true;
}

} // namespace

// bench_touch FRAMEBUFFER ROUNDS ORDER [-- ORDER]..., an order being X,Y[;X,Y...] X,Y X,Y;X,Y|- COMMAND...:
// starts the commands in turn, types into the field and drags the map of each, clicks on an entry of its list
// unless there is a "-", and prints, a line for each key, step and click, the command's position, what was
// done, and the milliseconds from sending the event to the last pixel that it changed on the screen.
int main(int argc, char** argv) {
    std::vector<std::vector<char*>> words(1);
    for (int i = 3; i < argc; ++i) {
        if (std::strcmp(argv[i], "--") == 0)
            words.emplace_back();
        else
            words.back().push_back(argv[i]);
    }
    std::vector<Order> orders(words.size());
    bool good = argc > 3;
    for (std::size_t i = 0; i < words.size(); ++i)
        good = readOrder(words[i], orders[i]) && good;
    if (!good) {
        std::fputs("usage: bench_touch FRAMEBUFFER ROUNDS CLICKS MAP JUMP COMMAND... [-- ...]\n", stderr);
        return 2;
    }
    const bench::Screen screen(argv[1]);
    Display* display = XOpenDisplay(nullptr);
    if (!screen.valid() || !display) {
        std::fprintf(stderr, "no screen: %s\n", argv[1]);
        return 1;
    }
    Hands hands(display, screen);
    for (int round = 0; round < std::atoi(argv[2]); ++round)
        for (std::size_t i = 0; i < orders.size(); ++i)
            touch(hands, i, orders[i]);
    XCloseDisplay(display);
    return 0;
}
