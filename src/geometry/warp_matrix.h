// The matrix helpers of the warps: rotations, the fits of a rectangle onto a
// quadrangle, and the quadrangle and box a rectangle is carried to. Also the
// 2x3 and 3x3 arithmetic that the warp set-up shares with them.
#pragma once

#include "peli.h"

namespace pel::geometry {

PelStatus GetRotateTransform(double angle, double xShift, double yShift, double coeffs[2][3]);
PelStatus GetRotateShift(double xCenter, double yCenter, double angle, double* xShift, double* yShift);
PelStatus GetAffineTransform(PeliRect srcRoi, const double quad[4][2], double coeffs[2][3]);
PelStatus GetAffineQuad(PeliRect srcRoi, double quad[4][2], const double coeffs[2][3]);
PelStatus GetAffineBound(PeliRect srcRoi, double bound[2][2], const double coeffs[2][3]);
PelStatus GetPerspectiveTransform(PeliRect srcRoi, const double quad[4][2], double coeffs[3][3]);
PelStatus GetPerspectiveQuad(PeliRect srcRoi, double quad[4][2], const double coeffs[3][3]);
PelStatus GetPerspectiveBound(PeliRect srcRoi, double bound[2][2], const double coeffs[3][3]);

// A 2x3 affine matrix as the last row (0 0 1) of a 3x3 one.
void AffineAs3x3(const double a[2][3], double m[3][3]);
// Whether a 2x3 matrix is too close to singular to warp through (the
// relative measure of its 2x2 part).
bool AffineSingular(const double a[2][3]);
// The inverse of a 2x3 matrix; false when its determinant is below the
// double epsilon in magnitude.
bool InvertAffine(const double a[2][3], double inv[2][3]);
// The same for 3x3 matrices: singular when |det| <= 1e-10 x (largest |entry|)^3,
// a measure that does not change when the matrix is scaled.
bool PerspectiveSingular(const double m[3][3]);
bool InvertPerspective(const double m[3][3], double inv[3][3]);

}  // namespace pel::geometry
