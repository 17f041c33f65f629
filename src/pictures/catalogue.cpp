#include "pictures/catalogue.hpp"

#include <array>

namespace tombolario::pictures {

namespace {

constexpr std::array kStores{
    &commpr,     &Picture3,   &Picture4,      &Label13,    &Label4,    &Label9,        &Picture1,
    &Picture11,  &ramcar,     &Pictcomvidpok, &segn,       &CONTPOK1,  &CONTPOK2,      &SALVPOK1,
    &SALVPOK2,   &striscie,   &ufo,           &Pictcompok, &Picture5,  &dominob,       &domin,
    &spagnadom,  &brasiledom, &giapponedom,   &usadom,     &sveziadom, &portogallodom, &danimarcadom,
    &tabdom,     &Commdomban, &passadomban,   &PicRAM3,    &rampul1,   &rampul2,       &ramlas,
    &scambiaram, &RAMRESULT,  &rampar,        &ramvin,     &ramper,    &Picram,        &Picture2,
    &pictca,     &INICAT,     &CoNTCAT,       &CARCAT,     &SALVACAT,  &FINECA,        &SC1,
    &SC2,        &PICMAH,     &IImAH,         &ImAH,       &ELPEDMAH,  &CERPEDMAH};

}  // namespace

std::span<const PictureStore* const> catalogue() { return kStores; }

PictureId find(std::string_view name) {
  for (const PictureStore* store : kStores) {
    for (int i = 0; i < store->count; ++i) {
      const PictureId picture(*store, store->first + i);
      if (picture.name() == name) return picture;
    }
  }
  return {};
}

}  // namespace tombolario::pictures
