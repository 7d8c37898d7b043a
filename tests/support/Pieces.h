#pragma once

#include <string>
#include <type_traits>

#include "geometry/modToothProfile.h"

namespace tarnwick::test {

/// Calls `visit(name, member)` for every line and arc that a tooth can have.
template <class Visit>
void ForEachPieceMember(Visit&& visit) {
  visit("FaceLine", &ToothProfile::FaceLine);
  visit("SeatLine", &ToothProfile::SeatLine);
  visit("DropLine", &ToothProfile::DropLine);
  visit("FrostFaceLine", &ToothProfile::FrostFaceLine);
  visit("FrostArc", &ToothProfile::FrostArc);
  visit("FrostBottomLine", &ToothProfile::FrostBottomLine);
  visit("FirstArc", &ToothProfile::FirstArc);
  visit("SecondArc", &ToothProfile::SecondArc);
  visit("ThirdArc", &ToothProfile::ThirdArc);
  visit("BottomLine", &ToothProfile::BottomLine);
  visit("GulletArc", &ToothProfile::GulletArc);
  visit("BackLine", &ToothProfile::BackLine);
  visit("BackArc", &ToothProfile::BackArc);
  visit("TopLine", &ToothProfile::TopLine);
}

/// `visit(name, piece)` for the pieces of a tooth.
template <class Tooth, class Visit>
void ForEachPiece(Tooth& tooth, Visit&& visit) {
  ForEachPieceMember([&](const char* name, auto member) { visit(name, tooth.*member); });
}

/// `visit(name, pieceOfA, pieceOfB)` for the pieces of two teeth.
template <class Visit>
void ForEachPiece(const ToothProfile& a, const ToothProfile& b, Visit&& visit) {
  ForEachPieceMember([&](const char* name, auto member) { visit(name, a.*member, b.*member); });
}

/// Whether a piece, of whatever constness, is a line; the others are arcs.
template <class Piece>
inline constexpr bool IsLine = std::is_same_v<std::remove_cvref_t<Piece>, ToothLine>;

/// The pieces that only a Frost tooth has.
inline bool IsNotch(const std::string& name) { return name.starts_with("Frost"); }

/// A tooth that has every piece there is, each different from all others. No real one: for what must treat
/// all pieces alike.
inline ToothProfile FullTooth() {
  ToothProfile tooth;
  double next = 1;
  const auto number = [&] { return next += 0.0625; };
  ForEachPiece(tooth, [&](const char*, auto& piece) {
    if constexpr (IsLine<decltype(piece)>) {
      piece = {{number(), number()}, {number(), number()}};
    } else {
      piece = {number(), number(), number(), 100 + number(), 200 + number()};
    }
  });
  tooth.JoinPoint = {number(), number()};
  return tooth;
}

}  // namespace tarnwick::test
