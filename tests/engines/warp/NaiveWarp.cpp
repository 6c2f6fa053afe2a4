#include "engines/warp/NaiveWarp.h"

#include <algorithm>
#include <cmath>

namespace {

using CFloats = std::vector<float>;

float F(double f) {
    return static_cast<float>(f);
}

CFloats NaiveSlopes(const CFloats& X, const CFloats& Y) {
    const std::size_t n = X.size();
    CFloats A(n), B(n), C(n), D(n), gam(n);
    float h0 = 0, h1 = 0, r0 = 0, r1 = 0;
    const auto Round = [&](std::size_t i) {
        h0 = X[i] - X[i - 1] == 0 ? 1 : X[i] - X[i - 1];
        h1 = X[i + 1] - X[i] == 0 ? 1 : X[i + 1] - X[i];
        r0 = (Y[i] - Y[i - 1]) / h0;
        r1 = (Y[i + 1] - Y[i]) / h1;
    };
    Round(1);
    B[0] = h1 * (h0 + h1);
    C[0] = (h0 + h1) * (h0 + h1);
    D[0] = r0 * (3 * h0 * h1 + 2 * (h1 * h1)) + r1 * (h0 * h0);
    for (std::size_t i = 1; i < n - 1; ++i) {
        Round(i);
        A[i] = h1;
        B[i] = 2 * (h0 + h1);
        C[i] = h0;
        D[i] = 3 * (r0 * h1 + r1 * h0);
    }
    A[n - 1] = (h0 + h1) * (h0 + h1);
    B[n - 1] = h0 * (h0 + h1);
    D[n - 1] = r0 * (h1 * h1) + r1 * (3 * h0 * h1 + 2 * (h0 * h0));
    float bet = B[0];
    D[0] /= bet;
    for (std::size_t i = 1; i < n; ++i) {
        gam[i] = C[i - 1] / bet;
        bet = B[i] - A[i] * gam[i];
        if (bet == 0) return D;
        D[i] = (D[i] - A[i] * D[i - 1]) / bet;
    }
    for (std::size_t i = n - 1; i > 0; --i) D[i - 1] -= gam[i] * D[i];
    return D;
}

int NaiveOutline(const CNaiveMask& mask, int x, int y) {
    const auto bInside = [&](int i, int j) { return i >= 2 && j >= 2 && i < mask.w - 2 && j < mask.h - 2; };
    int nSwollen = 0;
    for (int j = y - 1; j <= y + 1; ++j)
        for (int i = x - 1; i <= x + 1; ++i) {
            bool bInk = false;
            for (int dy = -2; dy <= 2; ++dy)
                for (int dx = -2; dx <= 2; ++dx)
                    bInk |= std::abs(dx) + std::abs(dy) <= 2 && bInside(i, j) && mask.At(i + dx, j + dy) < 31;
            nSwollen += bInk ? 1 : 0;
        }
    return bInside(x, y) && nSwollen > 0 && nSwollen < 9 ? 0 : 255;
}

int NaiveShade(const CNaiveMask& mask, int x, int y) {
    if (x == 0 || y == 0 || x == mask.w - 1 || y == mask.h - 1) return 255;
    int dx = 0, dy = 0;
    for (int i = -1; i <= 1; ++i) {
        dx += mask.At(x - 1, y + i) - mask.At(x + 1, y + i);
        dy += mask.At(x + i, y + 1) - mask.At(x + i, y - 1);
    }
    const int n = 128 * dx + 128 * dy + 137700;
    int s = n < 0 ? 0 : static_cast<int>(n / std::sqrt(dx * dx + dy * dy + 2340900.0)) % 256;
    if (dx == 0 && dy == 0) s = 90;
    return s == 90 && mask.At(x, y) == 255 ? 255 : s;
}

std::vector<CFloats> NaiveGridLines(const MeshValues& along, const MeshValues& across, int nLines, int nStep,
                                    int nPoints, int nStride, int nCount) {
    std::vector<CFloats> lines;
    for (int i = 0; i < nLines; ++i) {
        CFloats X, Y;
        for (int k = 0; k < nPoints; ++k) {
            const auto nPoint = static_cast<unsigned>(i * nStep + k * nStride);
            X.push_back(along[nPoint]);
            Y.push_back(across[nPoint]);
        }
        lines.push_back(NaiveSpline(X, Y, nCount));
        if (lines.back().empty()) return {};
    }
    return lines;
}

CFloats Across(const std::vector<CFloats>& lines, int nPlace) {
    CFloats values;
    for (const CFloats& line : lines) values.push_back(line[static_cast<std::size_t>(nPlace)]);
    return values;
}

}  // namespace

int CNaiveMask::At(int x, int y) const {
    x = std::clamp(x, 0, w - 1);
    y = std::clamp(y, 0, h - 1);
    return bytes[static_cast<std::size_t>(y) * static_cast<std::size_t>(w) + static_cast<std::size_t>(x)];
}

CNaiveMask NaiveEffect(const CNaiveMask& mask, int nEffect) {
    CNaiveMask out = mask;
    for (int y = 0; y < mask.h; ++y)
        for (int x = 0; x < mask.w; ++x) {
            if (nEffect == 1) out.Set(x, y, NaiveShade(mask, x, y));
            if (nEffect == 2) out.Set(x, y, NaiveOutline(mask, x, y));
            if (nEffect == 3) out.Set(x, y, 255 - mask.At(x, y));
        }
    return out;
}

CNaiveMask NaiveProject(const CNaiveMask& mask, const TextArtParam& param) {
    CNaiveMask out{param.nBoxWidth, param.nBoxHeight};
    const double W = mask.w, H = mask.h;
    // A double that takes the value of a float with each assignment.
    double X[4], Y[4];
    for (unsigned i = 0; i < 4; ++i) {
        X[i] = F(param.fQuad[2 * i] / W);
        Y[i] = F(param.fQuad[2 * i + 1] / H);
    }
    const double sx = F(X[0] - X[1] + X[2] - X[3]), sy = F(Y[0] - Y[1] + Y[2] - Y[3]);
    double a = F(X[1] - X[0]), b = F(X[2] - X[1]), d = F(Y[1] - Y[0]), e = F(Y[2] - Y[1]), g = 0, h = 0;
    if (sx != 0 || sy != 0) {
        const double dx1 = F(X[1] - X[2]), dx2 = F(X[3] - X[2]), dy1 = F(Y[1] - Y[2]), dy2 = F(Y[3] - Y[2]);
        const double den = F(dx1 * dy2 - dy1 * dx2);
        if (den == 0) return out;
        g = F((sx * dy2 - dx2 * sy) / den);
        h = F((dx1 * sy - dy1 * sx) / den);
        a = F(X[1] - X[0] + g * X[1]);
        b = F(X[3] - X[0] + h * X[3]);
        d = F(Y[1] - Y[0] + g * Y[1]);
        e = F(Y[3] - Y[0] + h * Y[3]);
    }
    const double c = X[0], f = Y[0];
    for (int y = 0; y < out.h; ++y)
        for (int x = 0; x < out.w; ++x) {
            const double p = x / W, q = y / H;
            const double z = F((d * h - e * g) * p + (b * g - a * h) * q + (a * e - b * d));
            const double ms = F(W * ((e - f * h) * p + (c * h - b) * q + (b * f - c * e)) / z);
            const double mt = F(H * ((f * g - d) * p + (a - c * g) * q + (c * d - a * f)) / z);
            if (z == 0 || !(ms + 0.5 >= 1 && ms + 0.5 < W - 1 && mt + 0.5 >= 1 && mt + 0.5 < H - 1)) continue;
            const int i = static_cast<int>(ms), j = static_cast<int>(mt);
            const double fx = F(ms - i), fy = F(mt - j);
            const double top = F((1 - fx) * mask.At(i, j) + fx * mask.At(i + 1, j));
            const double bottom = F((1 - fx) * mask.At(i, j + 1) + fx * mask.At(i + 1, j + 1));
            out.Set(x, y, static_cast<int>((1 - fy) * top + fy * bottom));
        }
    return out;
}

CNaiveMask NaiveScale(const CNaiveMask& mask, int nWidth, int nHeight) {
    CNaiveMask out{nWidth, nHeight};
    if (mask.h <= 2) return out;
    const float kx = static_cast<float>(nWidth) / static_cast<float>(mask.w);
    const float ky = static_cast<float>(nHeight) / static_cast<float>(mask.h - 2);
    for (int y = 0; y < nHeight - 1; ++y)
        for (int x = 0; x < nWidth - 1; ++x) {
            const float s = static_cast<float>(x) / kx, t = static_cast<float>(y) / ky;
            const int i = static_cast<int>(s), j = static_cast<int>(t);
            const float fx = s - static_cast<float>(i), fy = t - static_cast<float>(j);
            const auto Row = [&](int nRow) {
                return (1 - fx) * static_cast<float>(mask.At(i, nRow)) +
                       fx * static_cast<float>(mask.At(i + 1, nRow));
            };
            out.Set(x, y, static_cast<int>((1 - fy) * Row(j) + fy * Row(j + 1)));
        }
    return out;
}

std::vector<float> NaiveSpline(const CFloats& X, const CFloats& Y, int nCount) {
    const CFloats D = NaiveSlopes(X, Y);
    const std::size_t n = X.size();
    if (0 < X[0] || static_cast<float>(nCount - 1) > X[n - 1]) return {};
    CFloats out;
    std::size_t j = 0;
    float p3 = -1, p1 = 0, A0 = 0, A1 = 0, A2 = 0, A3 = 0;
    for (int i = 0; i < nCount; ++i) {
        const auto p = static_cast<float>(i);
        if (p > p3) {
            while (j < n && p > X[j]) ++j;
            if (p < X[j]) --j;
            j = std::min(j, n - 2);
            const float dx = 1 / (X[j + 1] - X[j]), dy = (Y[j + 1] - Y[j]) * dx;
            p1 = X[j];
            p3 = X[j + 1];
            A0 = Y[j];
            A1 = D[j];
            A2 = dx * (3 * dy - 2 * D[j] - D[j + 1]);
            A3 = (dx * dx) * (-2 * dy + D[j] + D[j + 1]);
        }
        const float x = p - p1;
        out.push_back(((A3 * x + A2) * x + A1) * x + A0);
    }
    return out;
}

std::vector<std::uint8_t> NaiveLine(CFloats map, const std::vector<std::uint8_t>& line, bool bColumn) {
    const std::size_t n = map.size();
    std::vector<std::uint8_t> out(n, 255);
    map.push_back(static_cast<float>(n));
    CFloats inpos(n + 1);
    std::size_t u = 0;
    for (std::size_t x = 0; x < n; ++x) {
        while (u < (bColumn ? n : n - 1) && static_cast<double>(x) > map[u + 1]) ++u;
        if (u == n) {
            inpos[x] = map[n - 1];
            continue;
        }
        const double fU = static_cast<double>(u), d = static_cast<double>(map[u + 1]) - map[u];
        inpos[x] = F(d == 0 ? fU : fU + (static_cast<double>(x) - map[u]) / d);
    }
    const auto In = [&](std::size_t i) { return i < n ? static_cast<double>(line[i]) : 255.0; };
    double INSEG = 1, OUTSEG = inpos[1], SIZFAC = inpos[1], acc = 0;
    u = 0;
    for (std::size_t x = 0; x + 1 < n && u <= 16 * n + 4096;) {
        const double fIntensity = In(u) * INSEG + In(u + 1) * (1 - INSEG);
        if (INSEG >= OUTSEG) {
            acc += fIntensity * OUTSEG;
            const double f = SIZFAC == 0 ? 0 : std::trunc(acc / SIZFAC);
            // The sign of a remainder is that of what is divided.
            out[x] = static_cast<std::uint8_t>(std::isfinite(f) ? static_cast<int>(std::fmod(f, 256)) : 0);
            acc = 0;
            INSEG -= OUTSEG;
            ++x;
            OUTSEG = SIZFAC = static_cast<double>(inpos[x + 1]) - inpos[x];
        } else {
            acc += fIntensity * INSEG;
            OUTSEG -= INSEG;
            INSEG = 1;
            ++u;
        }
    }
    return out;
}

CNaiveMask NaiveMesh(const CNaiveMask& T, const TextArtParam& param) {
    CNaiveMask I{T.w, T.h}, out{T.w, T.h};
    const int C = param.nMeshCols, R = param.nMeshRows;
    if (C < 3 || R < 3 || C > 20 || R > 20 || C * R > 20) return out;
    const auto TS = NaiveGridLines(param.fMeshSrcY, param.fMeshSrcX, C, 1, R, C, T.h);
    const auto TD = NaiveGridLines(param.fMeshDstY, param.fMeshDstX, C, 1, R, C, T.h);
    if (TS.empty() || TD.empty()) return out;
    for (int y = 0; y < T.h; ++y) {
        const CFloats map = NaiveSpline(Across(TS, y), Across(TD, y), T.w);
        if (map.empty()) return out;
        std::vector<std::uint8_t> line(static_cast<std::size_t>(T.w));
        for (int x = 0; x < T.w; ++x)
            line[static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(T.At(x, y));
        line = NaiveLine(map, line, false);
        for (int x = 0; x < T.w; ++x) I.Set(x, y, line[static_cast<std::size_t>(x)]);
    }
    const auto S2 = NaiveGridLines(param.fMeshSrcX, param.fMeshSrcY, R, C, C, 1, T.w);
    const auto D2 = NaiveGridLines(param.fMeshDstX, param.fMeshDstY, R, C, C, 1, T.w);
    if (S2.empty() || D2.empty()) return out;
    for (int x = 0; x < T.w; ++x) {
        const CFloats map = NaiveSpline(Across(S2, x), Across(D2, x), T.h);
        if (map.empty()) return out;
        std::vector<std::uint8_t> line(static_cast<std::size_t>(T.h));
        for (int y = 0; y < T.h; ++y)
            line[static_cast<std::size_t>(y)] = static_cast<std::uint8_t>(I.At(x, y));
        line = NaiveLine(map, line, true);
        for (int y = 0; y < T.h; ++y) out.Set(x, y, line[static_cast<std::size_t>(y)]);
    }
    return out;
}

CPixels NaiveRender(const CPixels& base, const CNaiveMask& mask, const TextArtParam& param) {
    const bool bMesh = param.nWarpKind == 1;
    const int px = bMesh ? param.nMeshX : param.nBoxX, py = bMesh ? param.nMeshY : param.nBoxY;
    const int bw = bMesh ? param.nMeshWidth : param.nBoxWidth;
    const int bh = bMesh ? param.nMeshHeight : param.nBoxHeight;
    if (bw <= 0 || bh <= 0) return base;
    const CNaiveMask M = NaiveEffect(mask, param.nTextEffect);
    const CNaiveMask warped = bMesh ? NaiveMesh(NaiveScale(M, bw, bh), param) : NaiveProject(M, param);
    CPixels out = base;
    const CPixelView view = out.MutableView();
    for (int j = 0; j < bh; ++j)
        for (int i = 0; i < bw; ++i) {
            const int x = px + i, y = py + j, m = warped.At(i, j);
            if (x < 0 || y < 0 || x >= view.nWidth || y >= view.nHeight) continue;
            const auto Mix = [m](int nColour, int nChannel) {
                return static_cast<std::uint8_t>(((255 - m) * nColour + m * nChannel) / 255.0);
            };
            const CColor cr = view.Get(x, y);
            view.Set(x, y, {Mix(param.byRed, cr.r), Mix(param.byGreen, cr.g), Mix(param.byBlue, cr.b)});
        }
    return out;
}
