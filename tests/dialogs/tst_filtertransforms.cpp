// The filter editor's s <-> z transforms against an independent reference:
// the textbook substitutions expanded by polynomial arithmetic, for many
// seeded random coefficient sets at both orders, plus the round trips.
#include "filtertransforms.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace filtertransforms;

namespace {

// Polynomials by ascending power: p[k] is the coefficient of x^k.
using Poly = std::vector<double>;

Poly multiply(const Poly& a, const Poly& b)
{
    Poly r(a.size() + b.size() - 1, 0.0);
    for (size_t i = 0; i < a.size(); ++i)
        for (size_t j = 0; j < b.size(); ++j)
            r[i + j] += a[i] * b[j];
    return r;
}

Poly power(const Poly& p, int k)
{
    Poly r{1.0};
    for (int i = 0; i < k; ++i)
        r = multiply(r, p);
    return r;
}

void addScaled(Poly* sum, const Poly& p, double factor)
{
    if (sum->size() < p.size())
        sum->resize(p.size(), 0.0);
    for (size_t i = 0; i < p.size(); ++i)
        (*sum)[i] += factor * p[i];
}

// Substitutes x = num(y) / den(y) into sum c[k] x^k (degree n = c.size()-1)
// and clears the fraction: sum c[k] num^k den^(n-k), a polynomial in y.
Poly substitute(const Poly& c, const Poly& num, const Poly& den)
{
    const int n = static_cast<int>(c.size()) - 1;
    Poly r;
    for (int k = 0; k <= n; ++k)
        addScaled(&r, multiply(power(num, k), power(den, n - k)), c[k]);
    r.resize(static_cast<size_t>(n) + 1, 0.0); // the substitutions keep degree n
    return r;
}

// s as a fraction of z, and z as a fraction of s, for each method.
void sOfZ(int method, double fs, Poly* num, Poly* den)
{
    switch (method) {
    case Trapezoidal: *num = {-2.0 * fs, 2.0 * fs}; *den = {1.0, 1.0}; break; // 2fs(z-1)/(z+1)
    case BackwardEuler: *num = {-fs, fs}; *den = {0.0, 1.0}; break;           // fs(z-1)/z
    default: *num = {-fs, fs}; *den = {1.0}; break;                           // fs(z-1)
    }
}

void zOfS(int method, double fs, Poly* num, Poly* den)
{
    switch (method) {
    case Trapezoidal: *num = {2.0 * fs, 1.0}; *den = {2.0 * fs, -1.0}; break; // (2fs+s)/(2fs-s)
    case BackwardEuler: *num = {fs}; *den = {fs, -1.0}; break;                 // fs/(fs-s)
    default: *num = {fs, 1.0}; *den = {fs}; break;                             // (fs+s)/fs
    }
}

// The two sets as polynomials. H(s) = N(s)/D(s) by ascending powers of s;
// H(z) = P(z)/Q(z) by ascending powers of z, that is z^n times the form in
// z^-1.
struct SPolys {
    Poly n, d;
};
struct ZPolys {
    Poly p, q;
};

SPolys polysOf(bool first, const SCoefficients& s)
{
    if (first)
        return {{s.n0, s.n1}, {s.d0, 1.0}};
    return {{s.n0, s.n1, s.n2}, {s.d0, s.d1, 1.0}};
}

ZPolys polysOf(bool first, const ZCoefficients& z)
{
    if (first)
        return {{z.z5, z.z4}, {z.z7, 1.0}};
    return {{z.z5, z.z4, z.z3}, {z.z7, z.z6, 1.0}};
}

// The reference: H(z) from H(s), its leading z power in the denominator 1.
ZPolys referenceZ(bool first, int method, double fs, const SCoefficients& s)
{
    Poly num, den;
    sOfZ(method, fs, &num, &den);
    const SPolys h = polysOf(first, s);
    ZPolys r{substitute(h.n, num, den), substitute(h.d, num, den)};
    const double lead = r.q.back();
    for (double& c : r.p)
        c /= lead;
    for (double& c : r.q)
        c /= lead;
    return r;
}

SPolys referenceS(bool first, int method, double fs, const ZCoefficients& z)
{
    Poly num, den;
    zOfS(method, fs, &num, &den);
    const ZPolys h = polysOf(first, z);
    SPolys r{substitute(h.p, num, den), substitute(h.q, num, den)};
    const double lead = r.d.back();
    for (double& c : r.n)
        c /= lead;
    for (double& c : r.d)
        c /= lead;
    return r;
}

// Largest coefficient difference over the largest coefficient of the
// reference's numerator and denominator: a coefficient that cancels to
// nearly nothing is measured against the size of its polynomial.
double relativeError(const Poly& got, const Poly& want)
{
    double scale = 0.0, diff = 0.0;
    for (size_t i = 0; i < want.size(); ++i) {
        scale = std::max(scale, std::fabs(want[i]));
        diff = std::max(diff, std::fabs(got[i] - want[i]));
    }
    return scale > 0.0 ? diff / scale : diff;
}

double errorOf(const ZPolys& got, const ZPolys& want)
{
    return std::max(relativeError(got.p, want.p), relativeError(got.q, want.q));
}

double errorOf(const SPolys& got, const SPolys& want)
{
    return std::max(relativeError(got.n, want.n), relativeError(got.d, want.d));
}

// Random filters of a realistic shape: corner frequencies from fs/3000 to
// fs/5, quality 0.3 to 10, numerators of either sign at the same scales.
struct Generator {
    std::mt19937_64 rng;
    explicit Generator(unsigned seed) : rng(seed) {}
    double uniform(double lo, double hi) { return std::uniform_real_distribution<double>(lo, hi)(rng); }
    double logUniform(double lo, double hi) { return std::exp(uniform(std::log(lo), std::log(hi))); }

    // Up to 1 MHz: above some 30 MHz the guard's fixed 1e-15 catches T^2
    // itself in the second-order inverse transforms.
    double fs() { return logUniform(100.0, 1e6); }
    SCoefficients sSet(bool first, double fs)
    {
        const double w = 2.0 * M_PI * fs * logUniform(1.0 / 3000.0, 0.2);
        SCoefficients s;
        if (first) {
            s.d0 = w;
            s.n0 = uniform(-2.0, 2.0) * w;
            s.n1 = uniform(-2.0, 2.0);
            s.d1 = uniform(-5.0, 5.0); // unused at first order: must survive
            s.n2 = uniform(-5.0, 5.0);
        } else {
            s.d0 = w * w;
            s.d1 = w / logUniform(0.3, 10.0);
            s.n0 = uniform(-2.0, 2.0) * w * w;
            s.n1 = uniform(-2.0, 2.0) * w;
            s.n2 = uniform(-2.0, 2.0);
        }
        return s;
    }
    // Poles inside the unit circle away from z = 0 and z = -1, where the
    // inverse substitutions have their own singularities.
    ZCoefficients zSet(bool first)
    {
        ZCoefficients z;
        const double r = uniform(0.1, 0.98);
        if (first) {
            z.z7 = -r;
            z.z4 = uniform(-1.0, 1.0);
            z.z5 = uniform(-1.0, 1.0);
            z.z3 = uniform(-5.0, 5.0);
            z.z6 = uniform(-5.0, 5.0);
        } else {
            const double theta = uniform(0.01, 2.5);
            z.z6 = -2.0 * r * std::cos(theta);
            z.z7 = r * r;
            z.z3 = uniform(-1.0, 1.0);
            z.z4 = uniform(-1.0, 1.0);
            z.z5 = uniform(-1.0, 1.0);
        }
        return z;
    }
};

constexpr int kSets = 2000;
const char* const kMethodNames[] = {"Trapezoidal", "Backward Euler", "Forward Euler"};

} // namespace

class TestFilterTransforms : public QObject {
    Q_OBJECT

private slots:
    void againstReference_data();
    void againstReference();
    void guard_data();
    void guard();
    void unusedSlotsSurvive();
    void badMethodComputesNothing();
    void cleanupTestCase() { qInfo("largest relative error of all: %.3g", m_worst); }

private:
    double m_worst = 0.0;
};

void TestFilterTransforms::againstReference_data()
{
    QTest::addColumn<bool>("first");
    QTest::addColumn<int>("method");
    for (int order = 1; order <= 2; ++order)
        for (int m = Trapezoidal; m <= ForwardEuler; ++m)
            QTest::addRow("order %d, %s", order, kMethodNames[m]) << (order == 1) << m;
}

// Per set: z from s against the reference, s from z against the reference,
// and both round trips. The bounds leave room for the conditioning of a
// low corner frequency at a high sampling rate, where z coefficients crowd
// around those of (1 - z^-1)^n.
void TestFilterTransforms::againstReference()
{
    QFETCH(bool, first);
    QFETCH(int, method);
    Generator gen(0x5eed0000u + 16u * first + static_cast<unsigned>(method));
    double worstZ = 0.0, worstS = 0.0, worstSZS = 0.0, worstZSZ = 0.0;
    for (int i = 0; i < kSets; ++i) {
        const double fs = gen.fs();
        const SCoefficients s = gen.sSet(first, fs);
        ZCoefficients z;
        QCOMPARE(zFromS(first, method, fs, s, &z), Outcome::Done);
        worstZ = std::max(worstZ, errorOf(polysOf(first, z), referenceZ(first, method, fs, s)));

        SCoefficients back = s;
        back.d0 = back.d1 = back.n0 = back.n1 = back.n2 = 0.0;
        if (first) { // the unused pair rides along untouched
            back.d1 = s.d1;
            back.n2 = s.n2;
        }
        QCOMPARE(sFromZ(first, method, fs, z, &back), Outcome::Done);
        worstSZS = std::max(worstSZS, errorOf(polysOf(first, back), polysOf(first, s)));
        if (first) {
            QCOMPARE(back.d1, s.d1);
            QCOMPARE(back.n2, s.n2);
        }

        const ZCoefficients zz = gen.zSet(first);
        SCoefficients sz;
        QCOMPARE(sFromZ(first, method, fs, zz, &sz), Outcome::Done);
        worstS = std::max(worstS, errorOf(polysOf(first, sz), referenceS(first, method, fs, zz)));
        ZCoefficients zBack;
        QCOMPARE(zFromS(first, method, fs, sz, &zBack), Outcome::Done);
        worstZSZ = std::max(worstZSZ, errorOf(polysOf(first, zBack), polysOf(first, zz)));
    }
    qInfo("largest relative error: s->z %.3g, z->s %.3g, s->z->s %.3g, z->s->z %.3g", worstZ,
          worstS, worstSZS, worstZSZ);
    m_worst = std::max({m_worst, worstZ, worstS, worstSZS, worstZSZ});
    QVERIFY2(worstZ < 1e-13, qPrintable(QString::number(worstZ)));
    QVERIFY2(worstS < 1e-10, qPrintable(QString::number(worstS)));
    QVERIFY2(worstZSZ < 1e-9, qPrintable(QString::number(worstZSZ)));
    QVERIFY2(worstSZS < 1e-6, qPrintable(QString::number(worstSZS)));
}

void TestFilterTransforms::guard_data()
{
    QTest::addColumn<double>("d");
    QTest::addColumn<bool>("fires");
    const double tiny = 1e-15;
    QTest::newRow("exactly 1e-15") << tiny << true;
    QTest::newRow("minus 1e-15") << -tiny << true;
    QTest::newRow("next double above") << std::nextafter(tiny, 1.0) << false;
    QTest::newRow("zero") << 0.0 << true;
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << false;
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << false;
}

void TestFilterTransforms::guard()
{
    QFETCH(double, d);
    QFETCH(bool, fires);
    QCOMPARE(denominatorTooSmall(d), fires);
}

// The guard stops a transform before it writes, and Forward Euler s -> z has
// no guard at all.
void TestFilterTransforms::unusedSlotsSurvive()
{
    const ZCoefficients before{3.0, 4.0, 5.0, 6.0, 7.0};
    ZCoefficients z = before;
    double d = -1.0;
    // First order, D0 = 0, Trapezoidal: D = 2, no guard.
    QCOMPARE(zFromS(true, Trapezoidal, 1000.0, SCoefficients{}, &z, &d), Outcome::Done);
    QCOMPARE(d, 2.0);
    QCOMPARE(z.z3, 3.0);
    QCOMPARE(z.z6, 6.0);
    // D0 = -fs makes D0 T + 1 = 0 for Backward Euler.
    z = before;
    SCoefficients s;
    s.d0 = -1000.0;
    QCOMPARE(zFromS(true, BackwardEuler, 1000.0, s, &z), Outcome::DivideByZero);
    QCOMPARE(z.z7, 7.0);
    QCOMPARE(zFromS(true, ForwardEuler, 1000.0, s, &z), Outcome::Done);
    QCOMPARE(zFromS(false, ForwardEuler, 1000.0, SCoefficients{}, &z), Outcome::Done);

    // z -> s: Z7 = 1 at first order Trapezoidal, Z7 = 0 Backward Euler.
    const SCoefficients sBefore{1.0, 2.0, 3.0, 4.0, 5.0};
    SCoefficients out = sBefore;
    QCOMPARE(sFromZ(true, Trapezoidal, 1000.0, ZCoefficients{0, 0.5, 0.5, 0, 1.0}, &out),
             Outcome::DivideByZero);
    QCOMPARE(sFromZ(true, BackwardEuler, 1000.0, ZCoefficients{0, 0.5, 0.5, 0, 0.0}, &out),
             Outcome::DivideByZero);
    QCOMPARE(out.d0, 1.0);
    QCOMPARE(sFromZ(true, ForwardEuler, 1000.0, ZCoefficients{0, 0.5, 0.5, 0, 0.5}, &out),
             Outcome::Done);
    QCOMPARE(out.d1, 2.0);
    QCOMPARE(out.n2, 5.0);
}

void TestFilterTransforms::badMethodComputesNothing()
{
    ZCoefficients z{1, 2, 3, 4, 5};
    SCoefficients s{1, 2, 3, 4, 5};
    for (int method : {-1, 3, 1000}) {
        QCOMPARE(zFromS(false, method, 1e3, s, &z), Outcome::NoMethod);
        QCOMPARE(sFromZ(true, method, 1e3, z, &s), Outcome::NoMethod);
    }
    QCOMPARE(z.z3, 1.0);
    QCOMPARE(s.n2, 5.0);
    QCOMPARE(zFromS(false, 0, 1e3, s, nullptr), Outcome::NoMethod);
}

QTEST_APPLESS_MAIN(TestFilterTransforms)
#include "tst_filtertransforms.moc"
