#include "geometry/warp_matrix.h"

#include <algorithm>
#include <cmath>

#include "core/common.h"
#include "core/exports.h"

namespace pel::geometry {

namespace {

constexpr double kPi = 3.141592653589793;

// Degrees reduced to [0, 360): a multiple of 90 then compares exactly.
double ReduceAngle(double angle) {
  double a = angle - std::trunc(angle / 360) * 360;
  if (a < 0) a += 360;
  return a;
}

double Cross(double ax, double ay, double bx, double by) { return ax * by - ay * bx; }

enum class QuadShape { Degenerate, NotConvex, Convex };

// The sign of the turn at each corner: all one sign is convex, a zero turn
// is degenerate.
QuadShape Classify(const double q[4][2]) {
  double e[4][2];
  for (int i = 0; i < 4; ++i) {
    e[i][0] = q[(i + 1) & 3][0] - q[i][0];
    e[i][1] = q[(i + 1) & 3][1] - q[i][1];
  }
  int positive = 0, negative = 0;
  for (int i = 0; i < 4; ++i) {
    const double* a = e[(i + 3) & 3];  // the edge that arrives at corner i
    const double c = Cross(a[0], a[1], e[i][0], e[i][1]);
    if (c == 0) return QuadShape::Degenerate;
    (c > 0 ? positive : negative)++;
  }
  return positive == 4 || negative == 4 ? QuadShape::Convex : QuadShape::NotConvex;
}

// (p - q) / p, or q itself when p is too small to divide by.
double RelativeGap(double p, double q) { return std::fabs(p) > 1e-200 ? (p - q) / p : q; }

bool BadRect(PeliRect r) { return r.x < 0 || r.y < 0 || r.width < 1 || r.height < 1; }

// The rectangle's corners in quadrangle order: top left, top right, bottom
// right, bottom left (last column and row included).
void Corners(PeliRect r, double c[4][2]) {
  const double x0 = r.x, y0 = r.y, x1 = double(r.x) + r.width - 1, y1 = double(r.y) + r.height - 1;
  c[0][0] = x0, c[0][1] = y0;
  c[1][0] = x1, c[1][1] = y0;
  c[2][0] = x1, c[2][1] = y1;
  c[3][0] = x0, c[3][1] = y1;
}

PelStatus QuadStatus(const double q[4][2]) {
  return Classify(q) == QuadShape::Convex ? pelStatusOk : pelStatusCoefficientsSingular;
}

void BoundOf(const double q[4][2], double bound[2][2]) {
  for (int k = 0; k < 2; ++k) {
    bound[0][k] = std::min(std::min(q[0][k], q[1][k]), std::min(q[2][k], q[3][k]));
    bound[1][k] = std::max(std::max(q[0][k], q[1][k]), std::max(q[2][k], q[3][k]));
  }
}

}  // namespace

PelStatus GetRotateTransform(double angle, double xShift, double yShift, double coeffs[2][3]) {
  if (!std::isfinite(angle)) return pelStatusOutOfRange;
  if (coeffs == nullptr) return pelStatusNullPointer;
  const double a = ReduceAngle(angle);
  double c, s;
  // Right angles exactly: no residue of sin(pi) in a quarter turn.
  if (a == 0) c = 1, s = 0;
  else if (a == 90) c = 0, s = 1;
  else if (a == 180) c = -1, s = 0;
  else if (a == 270) c = 0, s = -1;
  else c = std::cos(a / 180 * kPi), s = std::sin(a / 180 * kPi);
  coeffs[0][0] = c, coeffs[0][1] = s, coeffs[0][2] = xShift;
  coeffs[1][0] = 0.0 - s, coeffs[1][1] = c, coeffs[1][2] = yShift;  // +0, not -0, at 0 and 180
  return pelStatusOk;
}

PelStatus GetRotateShift(double xCenter, double yCenter, double angle, double* xShift, double* yShift) {
  if (AnyNull(xShift, yShift)) return pelStatusNullPointer;
  const double a = ReduceAngle(angle);
  if (a == 0) *xShift = 0, *yShift = 0;
  else if (a == 90) *xShift = xCenter - yCenter, *yShift = xCenter + yCenter;
  else if (a == 180) *xShift = 2 * xCenter, *yShift = 2 * yCenter;
  else if (a == 270) *xShift = xCenter + yCenter, *yShift = yCenter - xCenter;
  else {
    const double r = a / 180 * kPi, c = std::cos(r), s = std::sin(r);
    *xShift = xCenter - xCenter * c - yCenter * s;
    *yShift = yCenter - yCenter * c + xCenter * s;
  }
  return pelStatusOk;
}

PelStatus GetAffineTransform(PeliRect srcRoi, const double quad[4][2], double coeffs[2][3]) {
  if (AnyNull(quad, coeffs)) return pelStatusNullPointer;
  if (BadRect(srcRoi)) return pelStatusBadSize;
  if (Classify(quad) != QuadShape::Convex) return pelStatusQuadrangleError;
  const double(*q)[2] = quad;
  const double gap0 = RelativeGap((q[3][0] - q[2][0]) * (q[1][1] - q[0][1]), (q[1][0] - q[0][0]) * (q[3][1] - q[2][1]));
  const double gap1 = RelativeGap((q[0][0] - q[3][0]) * (q[2][1] - q[1][1]), (q[2][0] - q[1][0]) * (q[0][1] - q[3][1]));
  const bool parallelogram = std::fabs(gap0) <= 1e-10 && std::fabs(gap1) <= 1e-10;
  const double x0 = srcRoi.x, y0 = srcRoi.y;
  const double w1 = double(srcRoi.x) + srcRoi.width - 1 - x0, h1 = double(srcRoi.y) + srcRoi.height - 1 - y0;
  if (!(w1 > 0) || !(h1 > 0)) return pelStatusCoefficientsError;
  // Corner 0 -> point 0, one row along -> point 1, then one column down ->
  // point 2.
  const double c00 = (q[1][0] - q[0][0]) / w1, c10 = (q[1][1] - q[0][1]) / w1;
  const double c01 = (q[2][0] - q[1][0]) / h1, c11 = (q[2][1] - q[1][1]) / h1;
  coeffs[0][0] = c00, coeffs[0][1] = c01, coeffs[0][2] = q[0][0] - c00 * x0 - c01 * y0;
  coeffs[1][0] = c10, coeffs[1][1] = c11, coeffs[1][2] = q[0][1] - c10 * x0 - c11 * y0;
  return parallelogram ? pelStatusOk : pelStatusNotParallelogramWarning;
}

PelStatus GetAffineQuad(PeliRect srcRoi, double quad[4][2], const double coeffs[2][3]) {
  if (AnyNull(quad, coeffs)) return pelStatusNullPointer;
  if (BadRect(srcRoi)) return pelStatusBadSize;
  double c[4][2];
  Corners(srcRoi, c);
  for (int i = 0; i < 4; ++i) {
    quad[i][0] = coeffs[0][0] * c[i][0] + coeffs[0][1] * c[i][1] + coeffs[0][2];
    quad[i][1] = coeffs[1][0] * c[i][0] + coeffs[1][1] * c[i][1] + coeffs[1][2];
  }
  return QuadStatus(quad);
}

PelStatus GetAffineBound(PeliRect srcRoi, double bound[2][2], const double coeffs[2][3]) {
  if (AnyNull(bound, coeffs)) return pelStatusNullPointer;
  double q[4][2];
  const PelStatus st = GetAffineQuad(srcRoi, q, coeffs);
  if (st != pelStatusOk && st != pelStatusCoefficientsSingular) return st;
  BoundOf(q, bound);
  return st;
}

PelStatus GetPerspectiveQuad(PeliRect srcRoi, double quad[4][2], const double coeffs[3][3]) {
  if (AnyNull(quad, coeffs)) return pelStatusNullPointer;
  if (BadRect(srcRoi)) return pelStatusBadSize;
  double c[4][2];
  Corners(srcRoi, c);
  for (int i = 0; i < 4; ++i) {
    const double w = coeffs[2][0] * c[i][0] + coeffs[2][1] * c[i][1] + coeffs[2][2];
    quad[i][0] = (coeffs[0][0] * c[i][0] + coeffs[0][1] * c[i][1] + coeffs[0][2]) / w;
    quad[i][1] = (coeffs[1][0] * c[i][0] + coeffs[1][1] * c[i][1] + coeffs[1][2]) / w;
  }
  return QuadStatus(quad);
}

PelStatus GetPerspectiveBound(PeliRect srcRoi, double bound[2][2], const double coeffs[3][3]) {
  if (bound == nullptr) return pelStatusNullPointer;
  double q[4][2];
  const PelStatus st = GetPerspectiveQuad(srcRoi, q, coeffs);
  if (st != pelStatusOk && st != pelStatusCoefficientsSingular) return st;
  BoundOf(q, bound);
  return st;
}

PelStatus GetPerspectiveTransform(PeliRect srcRoi, const double quad[4][2], double coeffs[3][3]) {
  if (AnyNull(quad, coeffs)) return pelStatusNullPointer;
  if (BadRect(srcRoi)) return pelStatusBadSize;
  if (Classify(quad) != QuadShape::Convex) return pelStatusQuadrangleError;
  if (srcRoi.width < 2 || srcRoi.height < 2) return pelStatusCoefficientsError;
  // Eight unknowns (c22 = 1), two equations a corner:
  //   c00 u + c01 v + c02 - X (c20 u + c21 v) = X, likewise for Y.
  double c[4][2];
  Corners(srcRoi, c);
  double a[8][9] = {};
  for (int i = 0; i < 4; ++i) {
    const double u = c[i][0], v = c[i][1], X = quad[i][0], Y = quad[i][1];
    double* rx = a[2 * i];
    double* ry = a[2 * i + 1];
    rx[0] = u, rx[1] = v, rx[2] = 1, rx[6] = -X * u, rx[7] = -X * v, rx[8] = X;
    ry[3] = u, ry[4] = v, ry[5] = 1, ry[6] = -Y * u, ry[7] = -Y * v, ry[8] = Y;
  }
  // Gaussian elimination with partial pivoting.
  for (int k = 0; k < 8; ++k) {
    int p = k;
    for (int i = k + 1; i < 8; ++i)
      if (std::fabs(a[i][k]) > std::fabs(a[p][k])) p = i;
    if (a[p][k] == 0) return pelStatusCoefficientsError;
    if (p != k)
      for (int j = 0; j < 9; ++j) std::swap(a[p][j], a[k][j]);
    for (int i = k + 1; i < 8; ++i) {
      const double f = a[i][k] / a[k][k];
      for (int j = k; j < 9; ++j) a[i][j] -= f * a[k][j];
    }
  }
  double x[8];
  for (int k = 7; k >= 0; --k) {
    double s = a[k][8];
    for (int j = k + 1; j < 8; ++j) s -= a[k][j] * x[j];
    x[k] = s / a[k][k];
  }
  for (int i = 0; i < 8; ++i) coeffs[i / 3][i % 3] = x[i];
  coeffs[2][2] = 1;
  return pelStatusOk;
}

void AffineAs3x3(const double a[2][3], double m[3][3]) {
  for (int i = 0; i < 2; ++i)
    for (int j = 0; j < 3; ++j) m[i][j] = a[i][j];
  m[2][0] = 0, m[2][1] = 0, m[2][2] = 1;
}

bool AffineSingular(const double a[2][3]) {
  return std::fabs(RelativeGap(a[0][0] * a[1][1], a[0][1] * a[1][0])) <= 1e-10;
}

bool InvertAffine(const double a[2][3], double inv[2][3]) {
  const double det = a[0][0] * a[1][1] - a[0][1] * a[1][0];
  if (!(std::fabs(det) >= 2.220446049250313e-16)) return false;
  inv[0][0] = a[1][1] / det;
  inv[0][1] = -a[0][1] / det;
  inv[0][2] = (a[0][1] * a[1][2] - a[1][1] * a[0][2]) / det;
  inv[1][0] = -a[1][0] / det;
  inv[1][1] = a[0][0] / det;
  inv[1][2] = (a[1][0] * a[0][2] - a[0][0] * a[1][2]) / det;
  return true;
}

namespace {
double Det3(const double m[3][3]) {
  return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
         m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}
}  // namespace

bool PerspectiveSingular(const double m[3][3]) {
  double big = 0;
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) big = std::max(big, std::fabs(m[i][j]));
  if (!std::isfinite(big)) return true;
  return !(std::fabs(Det3(m)) > 1e-10 * big * big * big);
}

bool InvertPerspective(const double m[3][3], double inv[3][3]) {
  const double det = Det3(m);
  if (!(std::fabs(det) >= 2.220446049250313e-16)) return false;
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) {
      // Cofactor of (j, i): the adjugate's entry (i, j).
      const int r0 = (j + 1) % 3, r1 = (j + 2) % 3, c0 = (i + 1) % 3, c1 = (i + 2) % 3;
      inv[i][j] = (m[r0][c0] * m[r1][c1] - m[r0][c1] * m[r1][c0]) / det;
    }
  return true;
}

#define PEL_EXPORT PEL_INSTANTIATE_EXPORT
#include "geometry/warp_matrix_exports.inc"
#undef PEL_EXPORT

}  // namespace pel::geometry
