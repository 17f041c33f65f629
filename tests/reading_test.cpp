#include "toolkit/reading.hpp"

#include <algorithm>

#include "session.hpp"

namespace tombolario {
namespace {

/// What is heard of those roles, a line each.
std::string heard(Session& room, std::initializer_list<Role> roles) {
  std::string lines;
  for (const Reading& reading : readingOf(room.driver.form())) {
    if (std::find(roles.begin(), roles.end(), reading.role) != roles.end()) lines += reading.name + '\n';
  }
  return lines;
}

TEST(Reading, GoesByRowsAndTellsMarksAndWhoseANumberIs) {
  Session room;
  room.play({"click commpr(2)"});
  room.queueCards(53, {0, 11, 32, 18, 52});
  room.play({"click Command8", "click Command2(1)"});
  EXPECT_EQ(
      heard(room, {Role::Picture, Role::Button, Role::Text}),
      "asso rosso\ndonna rossa, segnata\n7 azzurro\n6 giallo\njolly\n"
      "Segna, asso rosso\nSegna, donna rossa, segnata\nSegna, 7 azzurro\nSegna, 6 giallo\nSegna, jolly\n"
      "combinazioni e relativo punteggio\nNUOVA MANO\n"
      "mano nulla -1, coppia 0, doppia coppia 2, tris 4, scala 5, full 7, colore 8, colore rosso 10, "
      "poker 12, scala reale 15, pokerissimo 18\n"
      "CAMBIA CARTE\nDotazione\nDotazione: 10\nTERMINA\n");
}

TEST(Reading, KeepsTheOptionsOfAGroupTogether) {
  Session room;
  room.play({"click commpr(1)"});
  EXPECT_EQ(heard(room, {Role::Group, Role::Option}),
            "TIPI DI PUNTEGGIO\nPer mano\nPer configurazione\nDIFFICOLTA'\nNormale\nAlta\n");
}

TEST(Reading, TellsACountByThePictureBesideItAndATileByItsPlace) {
  Session room;
  room.play({"click commpr(3)", "click giocodom"});
  const std::string counts = heard(room, {Role::Text});
  for (const char* country : {"della Spagna", "del Portogallo", "della Danimarca"}) {
    for (const char* side : {", HUMAN: ", ", COMPUTER: "})
      EXPECT_NE(counts.find(std::string("\nbandiera ") + country + side), std::string::npos) << country;
  }
  room.play({"click FINEDOM", "click MENUDOM", "click commpr(6)", "click Commah(81)"});
  const std::string tiles = heard(room, {Role::Tile});
  EXPECT_EQ(std::count(tiles.begin(), tiles.end(), '\n'), 80) << "forty are covered";
  EXPECT_NE(tiles.find("fila 1, posto 3, fondo rosso"), std::string::npos);
}

}  // namespace
}  // namespace tombolario
