// SPDX-License-Identifier: MIT
// CMake makes precompiled headers for a target with sources only.
