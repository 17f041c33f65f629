#pragma once

#include <span>

#include "toolkit/picture.hpp"

/// Every picture of the room, by the name of the store that holds it and its index there. All are drawn
/// by code at their own size in pixels, so that they stay sharp at any scale.
namespace tombolario::pictures {

// The main menu; the last three are cursors.
extern const PictureStore commpr, Picture3, Picture4, Label13, Label4, Label9;
// The packs of cards.
extern const PictureStore Picture1, Picture11, ramcar;
// Video poker.
extern const PictureStore Pictcomvidpok, segn, CONTPOK1, CONTPOK2, SALVPOK1, SALVPOK2, striscie;
// Poker against the computer; the first is the back of a card.
extern const PictureStore ufo, Pictcompok, Picture5;
// Domino: the faces, the blank tile, the flags of the numbers 0 to 6.
extern const PictureStore dominob, domin, spagnadom, brasiledom, giapponedom, usadom, sveziadom,
    portogallodom, danimarcadom, tabdom, Commdomban, passadomban;
// Ramino.
extern const PictureStore PicRAM3, rampul1, rampul2, ramlas, scambiaram, RAMRESULT, rampar, ramvin, ramper,
    Picram;
// The chain game.
extern const PictureStore Picture2, pictca, INICAT, CoNTCAT, CARCAT, SALVACAT, FINECA, SC1, SC2;
// Mahjongg: the tiles of the board, those of the bench.
extern const PictureStore PICMAH, IImAH, ImAH, ELPEDMAH, CERPEDMAH;

/// All stores, in the order above.
std::span<const PictureStore* const> catalogue();

/// The picture of that name, as `Picture1(12)` or `CONTPOK1`; no picture if there is none.
PictureId find(std::string_view name);

}  // namespace tombolario::pictures
