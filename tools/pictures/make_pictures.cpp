// Draws the library's picture resources: the plot symbols, dash patterns and
// axis styles that the graph option dialogs show in their owner-drawn lists.
// Each picture is plain geometry on a white ground, written as a 24-bit
// uncompressed .bmp.
//
//   make_pictures DIR           writes DIR/symbol1.bmp ... DIR/axes3d8.bmp
//   make_pictures --check DIR   exit 1 when a file in DIR differs from what
//                               would be written (stale pictures)
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace {

struct Colour {
    std::uint8_t r, g, b;
};

constexpr Colour kInk{0, 0, 0};
constexpr Colour kPaper{255, 255, 255};

struct Point {
    double x, y;
};

class Canvas {
public:
    Canvas(int width, int height) : w_(width), h_(height), pixels_(static_cast<std::size_t>(width * height), kPaper) {}

    int width() const { return w_; }
    int height() const { return h_; }

    void set(int x, int y, Colour c = kInk) {
        if (x >= 0 && y >= 0 && x < w_ && y < h_) pixels_[static_cast<std::size_t>(y * w_ + x)] = c;
    }

    void rect(int x0, int y0, int x1, int y1, Colour c = kInk) {
        for (int y = y0; y <= y1; ++y)
            for (int x = x0; x <= x1; ++x) set(x, y, c);
    }

    // A line one pixel wide, every pixel of it (Bresenham).
    void line(int x0, int y0, int x1, int y1, Colour c = kInk) {
        const int dx = std::abs(x1 - x0), sx = x0 < x1 ? 1 : -1;
        const int dy = -std::abs(y1 - y0), sy = y0 < y1 ? 1 : -1;
        int err = dx + dy;
        for (;;) {
            set(x0, y0, c);
            if (x0 == x1 && y0 == y1) return;
            const int e2 = 2 * err;
            if (e2 >= dy) {
                err += dy;
                x0 += sx;
            }
            if (e2 <= dx) {
                err += dx;
                y0 += sy;
            }
        }
    }

    // A dotted line: every other pixel.
    void dotted(int x0, int y0, int x1, int y1, Colour c = kInk) {
        const int steps = std::max(std::abs(x1 - x0), std::abs(y1 - y0));
        for (int i = 0; i <= steps; i += 2) {
            const double t = steps ? static_cast<double>(i) / steps : 0.0;
            set(static_cast<int>(std::lround(x0 + t * (x1 - x0))), static_cast<int>(std::lround(y0 + t * (y1 - y0))), c);
        }
    }

    // Pixels whose centres lie inside the shape.
    void fill(const std::function<bool(double, double)>& inside, Colour c = kInk) {
        for (int y = 0; y < h_; ++y)
            for (int x = 0; x < w_; ++x)
                if (inside(x + 0.5, y + 0.5)) set(x, y, c);
    }

    // Pixels whose centres lie within half a width of the shape's edge,
    // found by sampling the pixel: a ring for a circle, a frame for a polygon.
    void outline(const std::function<double(double, double)>& distance, double width, Colour c = kInk) {
        fill([&](double x, double y) { return std::abs(distance(x, y)) <= width / 2.0; }, c);
    }

    std::vector<std::uint8_t> bmp() const {
        const int rowBytes = (w_ * 3 + 3) & ~3;
        const std::uint32_t imageBytes = static_cast<std::uint32_t>(rowBytes * h_);
        std::vector<std::uint8_t> out;
        auto u16 = [&](std::uint32_t v) {
            out.push_back(static_cast<std::uint8_t>(v));
            out.push_back(static_cast<std::uint8_t>(v >> 8));
        };
        auto u32 = [&](std::uint32_t v) {
            u16(v & 0xFFFF);
            u16(v >> 16);
        };
        // BITMAPFILEHEADER
        out.push_back('B');
        out.push_back('M');
        u32(14 + 40 + imageBytes);
        u32(0);
        u32(14 + 40);
        // BITMAPINFOHEADER: bottom-up rows, 24 bits, no compression, 96 dpi.
        u32(40);
        u32(static_cast<std::uint32_t>(w_));
        u32(static_cast<std::uint32_t>(h_));
        u16(1);
        u16(24);
        u32(0);
        u32(imageBytes);
        u32(3780);
        u32(3780);
        u32(0);
        u32(0);
        for (int y = h_ - 1; y >= 0; --y) {
            for (int x = 0; x < w_; ++x) {
                const Colour c = pixels_[static_cast<std::size_t>(y * w_ + x)];
                out.push_back(c.b);
                out.push_back(c.g);
                out.push_back(c.r);
            }
            for (int pad = w_ * 3; pad < rowBytes; ++pad) out.push_back(0);
        }
        return out;
    }

private:
    int w_, h_;
    std::vector<Colour> pixels_;
};

// Geometry helpers ----------------------------------------------------------

double segmentDistance(Point p, Point a, Point b) {
    const double vx = b.x - a.x, vy = b.y - a.y;
    const double len2 = vx * vx + vy * vy;
    double t = len2 > 0 ? ((p.x - a.x) * vx + (p.y - a.y) * vy) / len2 : 0.0;
    t = std::clamp(t, 0.0, 1.0);
    const double dx = p.x - (a.x + t * vx), dy = p.y - (a.y + t * vy);
    return std::sqrt(dx * dx + dy * dy);
}

bool insidePolygon(const std::vector<Point>& poly, double x, double y) {
    bool in = false;
    for (std::size_t i = 0, j = poly.size() - 1; i < poly.size(); j = i++) {
        const Point a = poly[i], b = poly[j];
        if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x) in = !in;
    }
    return in;
}

double polygonEdgeDistance(const std::vector<Point>& poly, double x, double y) {
    double best = 1e9;
    for (std::size_t i = 0, j = poly.size() - 1; i < poly.size(); j = i++)
        best = std::min(best, segmentDistance({x, y}, poly[j], poly[i]));
    return best;
}

// A regular polygon (or star with alternating radii) around a centre; the
// first corner points straight up when angle0 is -90 degrees.
std::vector<Point> ring(Point centre, int corners, double radius, double inner, double angle0Degrees) {
    std::vector<Point> points;
    const double pi = std::acos(-1.0);
    const int n = inner > 0 ? corners * 2 : corners;
    for (int i = 0; i < n; ++i) {
        const double r = (inner > 0 && i % 2 == 1) ? inner : radius;
        const double a = (angle0Degrees + 360.0 * i / n) * pi / 180.0;
        points.push_back({centre.x + r * std::cos(a), centre.y + r * std::sin(a)});
    }
    return points;
}

void polygon(Canvas& c, const std::vector<Point>& poly, bool filled) {
    if (filled) c.fill([&](double x, double y) { return insidePolygon(poly, x, y); });
    c.outline([&](double x, double y) { return polygonEdgeDistance(poly, x, y); }, 1.3);
}

void circle(Canvas& c, Point centre, double radius, bool filled) {
    auto d = [=](double x, double y) { return std::hypot(x - centre.x, y - centre.y); };
    if (filled) c.fill([&](double x, double y) { return d(x, y) <= radius; });
    else c.outline([&](double x, double y) { return d(x, y) - radius; }, 1.3);
}

// Plot symbols, 16 x 16 ------------------------------------------------------

constexpr int kSymbolSize = 16;
constexpr Point kMid{8.0, 8.0};
constexpr double kR = 6.0;

std::vector<Point> square() { return {{2.5, 2.5}, {13.5, 2.5}, {13.5, 13.5}, {2.5, 13.5}}; }
std::vector<Point> triangleUp() { return {{8.0, 1.8}, {14.3, 13.2}, {1.7, 13.2}}; }
std::vector<Point> triangleDown() { return {{1.7, 2.8}, {14.3, 2.8}, {8.0, 14.2}}; }
std::vector<Point> diamond() { return {{8.0, 1.2}, {14.8, 8.0}, {8.0, 14.8}, {1.2, 8.0}}; }

void plus(Canvas& c, int half) {
    c.rect(8 - half, 7, 7 + half, 8);
    c.rect(7, 8 - half, 8, 7 + half);
}

void cross(Canvas& c, int from, int to) {
    for (int offset = 0; offset <= 1; ++offset) {
        c.line(from + offset, from, to, to - offset);
        c.line(from, from + offset, to - offset, to);
        c.line(to - offset, from, from, to - offset);
        c.line(to, from + offset, from + offset, to);
    }
}

using Draw = std::function<void(Canvas&)>;

const std::vector<Draw>& symbols() {
    static const std::vector<Draw> list = {
        [](Canvas& c) { circle(c, kMid, kR, false); },                       // 1 circle
        [](Canvas& c) { circle(c, kMid, kR, true); },                        // 2 filled circle
        [](Canvas& c) { polygon(c, square(), false); },                      // 3 square
        [](Canvas& c) { polygon(c, square(), true); },                       // 4 filled square
        [](Canvas& c) { polygon(c, triangleUp(), false); },                  // 5 triangle
        [](Canvas& c) { polygon(c, triangleUp(), true); },                   // 6 filled triangle
        [](Canvas& c) { polygon(c, diamond(), false); },                     // 7 diamond
        [](Canvas& c) { polygon(c, diamond(), true); },                      // 8 filled diamond
        [](Canvas& c) { plus(c, 6); },                                       // 9 plus
        [](Canvas& c) { cross(c, 3, 12); },                                  // 10 cross
        [](Canvas& c) { plus(c, 6); cross(c, 4, 11); },                      // 11 asterisk
        [](Canvas& c) { polygon(c, triangleDown(), false); },                // 12 triangle down
        [](Canvas& c) { polygon(c, triangleDown(), true); },                 // 13 filled triangle down
        [](Canvas& c) { polygon(c, ring({8.0, 8.6}, 5, 7.4, 3.0, -90), true); },  // 14 star
        [](Canvas& c) { circle(c, kMid, kR, false); plus(c, 6); },           // 15 circle with plus
        [](Canvas& c) { circle(c, kMid, kR, false); cross(c, 4, 11); },      // 16 circle with cross
        [](Canvas& c) { polygon(c, square(), false); cross(c, 3, 12); },     // 17 square with cross
        [](Canvas& c) { circle(c, kMid, 2.6, true); },                       // 18 dot
        [](Canvas& c) { c.rect(2, 7, 13, 8); },                              // 19 horizontal bar
        [](Canvas& c) { c.rect(7, 2, 8, 13); },                              // 20 vertical bar
        [](Canvas& c) { polygon(c, ring(kMid, 6, 6.6, 0, 0), false); },      // 21 hexagon
        [](Canvas& c) { polygon(c, ring(kMid, 6, 6.6, 0, 0), true); },       // 22 filled hexagon
    };
    return list;
}

// Dash patterns, 64 x 12 -----------------------------------------------------

constexpr int kDashWidth = 64, kDashHeight = 12;

// On and off runs in pixels, repeated along a two-pixel line.
const std::vector<std::vector<int>>& dashes() {
    static const std::vector<std::vector<int>> list = {
        {60, 0},              // 1 solid
        {2, 2},               // 2 dotted
        {5, 3},               // 3 short dashes
        {9, 4},               // 4 dashes
        {16, 5},              // 5 long dashes
        {9, 3, 2, 3},         // 6 dash dot
        {9, 3, 2, 3, 2, 3},   // 7 dash dot dot
        {16, 3, 2, 3},        // 8 long dash dot
        {16, 3, 6, 3},        // 9 long dash short dash
        {2, 6},               // 10 sparse dots
        {16, 3, 2, 3, 2, 3},  // 11 long dash dot dot
    };
    return list;
}

void drawDash(Canvas& c, const std::vector<int>& runs) {
    int x = 2;
    std::size_t i = 0;
    while (x < kDashWidth - 2) {
        const int run = runs[i % runs.size()];
        if (i % 2 == 0)
            for (int k = 0; k < run && x + k < kDashWidth - 2; ++k) c.rect(x + k, 5, x + k, 6);
        x += run;
        ++i;
    }
}

// Two-dimensional axis styles, 48 x 36 ---------------------------------------

constexpr int kAxesWidth = 48, kAxesHeight = 36;
// The plot frame: left, top, right, bottom.
constexpr int L = 8, T = 4, R = 43, B = 29;

void ticksBottom(Canvas& c, int y, int dir) {
    for (int x = L; x <= R; x += 7) c.line(x, y, x, y + 3 * dir);
}
void ticksLeft(Canvas& c, int x, int dir) {
    for (int y = B; y >= T; y -= 5) c.line(x, y, x - 3 * dir, y);
}
void frame(Canvas& c) {
    c.line(L, T, R, T);
    c.line(R, T, R, B);
    c.line(L, B, R, B);
    c.line(L, T, L, B);
}
void leftAndBottom(Canvas& c) {
    c.line(L, T, L, B);
    c.line(L, B, R, B);
}
void someData(Canvas& c) {
    const Point points[] = {{14, 23}, {19, 19}, {25, 20}, {30, 13}, {36, 10}};
    for (const Point& p : points) c.rect(static_cast<int>(p.x), static_cast<int>(p.y), static_cast<int>(p.x) + 1, static_cast<int>(p.y) + 1);
}

// In the order of the list: Box, L, U, C, Vertical, Horizontal, Bottom, Top,
// Left, Right, Cross, None.
const std::vector<Draw>& axes2d() {
    static const std::vector<Draw> list = {
        [](Canvas& c) { frame(c); ticksBottom(c, B, 1); ticksLeft(c, L, 1); },  // Box
        [](Canvas& c) { leftAndBottom(c); ticksBottom(c, B, 1); ticksLeft(c, L, 1); },  // L
        [](Canvas& c) {  // U: left, bottom and right
            leftAndBottom(c);
            c.line(R, T, R, B);
            ticksBottom(c, B, 1);
            ticksLeft(c, L, 1);
        },
        [](Canvas& c) {  // C: top, left and bottom
            leftAndBottom(c);
            c.line(L, T, R, T);
            ticksBottom(c, B, 1);
            ticksLeft(c, L, 1);
        },
        [](Canvas& c) {  // Vertical: left and right
            c.line(L, T, L, B);
            c.line(R, T, R, B);
            ticksLeft(c, L, 1);
            someData(c);
        },
        [](Canvas& c) {  // Horizontal: top and bottom
            c.line(L, T, R, T);
            c.line(L, B, R, B);
            ticksBottom(c, B, 1);
            someData(c);
        },
        [](Canvas& c) { c.line(L, B, R, B); ticksBottom(c, B, 1); someData(c); },  // Bottom
        [](Canvas& c) { c.line(L, T, R, T); ticksBottom(c, T, -1); someData(c); }, // Top
        [](Canvas& c) { c.line(L, T, L, B); ticksLeft(c, L, 1); someData(c); },    // Left
        [](Canvas& c) { c.line(R, T, R, B); ticksLeft(c, R, -1); someData(c); },   // Right
        [](Canvas& c) {                                                            // Cross
            const int cx = (L + R) / 2, cy = (T + B) / 2;
            c.line(L, cy, R, cy);
            c.line(cx, T, cx, B);
            for (int x = L + 2; x <= R; x += 7) c.line(x, cy - 1, x, cy + 1);
            for (int y = T + 2; y <= B; y += 5) c.line(cx - 1, y, cx + 1, y);
        },
        [](Canvas& c) { someData(c); },                                            // None
    };
    return list;
}

// Three-dimensional axis styles, 48 x 36 -------------------------------------

// The corners of an oblique box: front face and the back face shifted up
// and right.
constexpr int FX0 = 6, FY0 = 14, FX1 = 30, FY1 = 32;  // front face
constexpr int DX = 12, DY = -10;                      // depth offset

struct Box {
    Point f00{FX0, FY1}, f10{FX1, FY1}, f01{FX0, FY0}, f11{FX1, FY0};  // front: bottom-left, bottom-right, top-left, top-right
    Point b00{FX0 + DX, FY1 + DY}, b10{FX1 + DX, FY1 + DY}, b01{FX0 + DX, FY0 + DY}, b11{FX1 + DX, FY0 + DY};
};

void edge(Canvas& c, Point a, Point b, bool dashed = false, Colour colour = kInk) {
    const int x0 = static_cast<int>(a.x), y0 = static_cast<int>(a.y), x1 = static_cast<int>(b.x), y1 = static_cast<int>(b.y);
    if (dashed) c.dotted(x0, y0, x1, y1, colour);
    else c.line(x0, y0, x1, y1, colour);
}

void floorOf(Canvas& c, const Box& k) {
    edge(c, k.f00, k.f10);
    edge(c, k.f10, k.b10);
    edge(c, k.b10, k.b00);
    edge(c, k.b00, k.f00);
}
void backWalls(Canvas& c, const Box& k) {
    edge(c, k.b00, k.b01);
    edge(c, k.b10, k.b11);
    edge(c, k.b01, k.b11);
    edge(c, k.f00, k.f01);
    edge(c, k.f01, k.b01);
}
void cornerAxes(Canvas& c, const Box& k, bool ticks) {
    edge(c, k.f00, k.f10);  // x
    edge(c, k.f00, k.f01);  // z (up)
    edge(c, k.f00, k.b00);  // y (depth)
    if (!ticks) return;
    for (int i = 1; i <= 3; ++i) {
        const double t = i / 4.0;
        const int x = static_cast<int>(k.f00.x + t * (k.f10.x - k.f00.x));
        c.line(x, static_cast<int>(k.f00.y), x, static_cast<int>(k.f00.y) + 2);
        const int y = static_cast<int>(k.f00.y + t * (k.f01.y - k.f00.y));
        c.line(static_cast<int>(k.f00.x) - 2, y, static_cast<int>(k.f00.x), y);
        if (i == 2) {  // one tick halfway along the short depth axis
            const int dx = static_cast<int>(k.f00.x + t * DX), dy = static_cast<int>(k.f00.y + t * DY);
            c.line(dx - 2, dy, dx, dy);
        }
    }
}
void floatingData(Canvas& c) {
    const int points[][2] = {{14, 22}, {20, 17}, {25, 23}, {31, 14}, {36, 19}};
    for (const auto& p : points) c.rect(p[0], p[1], p[0] + 1, p[1] + 1);
}

// In the order of the list: Box, L, Book, Corner, Fork, Spoon, Cross, None.
const std::vector<Draw>& axes3d() {
    static const std::vector<Draw> list = {
        [](Canvas& c) {  // Box: the three hidden edges dotted
            const Box k;
            edge(c, k.b00, k.b01, true);
            edge(c, k.b00, k.b10, true);
            edge(c, k.b00, k.f00, true);
            edge(c, k.f00, k.f10);
            edge(c, k.f10, k.b10);
            edge(c, k.b10, k.b11);
            edge(c, k.b01, k.b11);
            edge(c, k.f00, k.f01);
            edge(c, k.f01, k.b01);
            edge(c, k.f10, k.f11);
            edge(c, k.f01, k.f11);
            edge(c, k.f11, k.b11);
        },
        [](Canvas& c) {  // L: the floor and the back wall
            const Box k;
            floorOf(c, k);
            edge(c, k.b00, k.b01);
            edge(c, k.b10, k.b11);
            edge(c, k.b01, k.b11);
        },
        [](Canvas& c) { const Box k; floorOf(c, k); backWalls(c, k); },  // Book: floor and two walls
        [](Canvas& c) { const Box k; cornerAxes(c, k, true); },          // Corner: three axes at the front
        [](Canvas& c) {  // Fork: three axes from the back corner
            const Box k;
            edge(c, k.b00, k.b10);
            edge(c, k.b00, k.b01);
            edge(c, k.b00, k.f00);
        },
        [](Canvas& c) { const Box k; floorOf(c, k); edge(c, k.f00, k.f01); },  // Spoon: the floor and one upright
        [](Canvas& c) {  // Cross: three axes through the middle
            const Box k;
            const Point m{(k.f00.x + k.b11.x) / 2, (k.f00.y + k.b11.y) / 2};
            edge(c, {m.x - 14, m.y}, {m.x + 14, m.y});
            edge(c, {m.x, m.y - 12}, {m.x, m.y + 12});
            edge(c, {m.x - DX / 2.0, m.y - DY / 2.0}, {m.x + DX / 2.0, m.y + DY / 2.0});
        },
        [](Canvas& c) { floatingData(c); },  // None
    };
    return list;
}

// Output ---------------------------------------------------------------------

struct Picture {
    std::string name;
    std::vector<std::uint8_t> bytes;
};

std::vector<Picture> allPictures() {
    std::vector<Picture> out;
    auto add = [&](const std::string& prefix, const std::vector<Draw>& draws, int w, int h) {
        for (std::size_t i = 0; i < draws.size(); ++i) {
            Canvas c(w, h);
            draws[i](c);
            out.push_back({prefix + std::to_string(i + 1), c.bmp()});
        }
    };
    add("symbol", symbols(), kSymbolSize, kSymbolSize);
    std::vector<Draw> dashDraws;
    for (const auto& runs : dashes()) dashDraws.push_back([runs](Canvas& c) { drawDash(c, runs); });
    add("dash", dashDraws, kDashWidth, kDashHeight);
    add("axes2d", axes2d(), kAxesWidth, kAxesHeight);
    add("axes3d", axes3d(), kAxesWidth, kAxesHeight);
    return out;
}

std::vector<std::uint8_t> readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace

int main(int argc, char** argv) {
    const bool check = argc == 3 && std::string(argv[1]) == "--check";
    if (argc != 2 && !check) {
        std::cerr << "usage: make_pictures [--check] DIR\n";
        return 2;
    }
    const std::string dir = argv[argc - 1];
    const std::vector<Picture> pictures = allPictures();
    if (pictures.size() != 22 + 11 + 12 + 8) {
        std::cerr << "make_pictures: wrong number of pictures\n";
        return 2;
    }
    int stale = 0;
    for (const Picture& p : pictures) {
        const std::string path = dir + "/" + p.name + ".bmp";
        if (check) {
            if (readFile(path) != p.bytes) {
                std::cerr << path << " is not what make_pictures draws\n";
                ++stale;
            }
            continue;
        }
        std::ofstream out(path, std::ios::binary);
        out.write(reinterpret_cast<const char*>(p.bytes.data()), static_cast<std::streamsize>(p.bytes.size()));
        if (!out) {
            std::cerr << "make_pictures: cannot write " << path << "\n";
            return 1;
        }
    }
    return stale ? 1 : 0;
}
