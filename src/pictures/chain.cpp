#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"

namespace tombolario::pictures {

constinit const PictureStore INICAT = plateStore<"NUOVA PARTITA", Size{240, 24}, kWhite, kRed>("INICAT");
constinit const PictureStore CoNTCAT = plateStore<"CONTINUA", Size{156, 22}, kWhite, kRed>("CoNTCAT");
constinit const PictureStore FINECA = plateStore<"FINE", Size{38, 14}, kWhite, kRed>("FINECA");

}  // namespace tombolario::pictures
