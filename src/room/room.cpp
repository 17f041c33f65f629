#include "room/room.hpp"

#include <algorithm>
#include <array>

#include "chain/table.hpp"
#include "domino/table.hpp"
#include "mahjongg/table.hpp"
#include "poker/table.hpp"
#include "ramino/table.hpp"
#include "room/main_menu.hpp"
#include "toolkit/cursors.hpp"
#include "videopoker/table.hpp"

namespace tombolario {

namespace {

constexpr Box kClientArea{0, 0, 11880, 8595};

}  // namespace

struct Room::Screens {
  explicit Screens(Host& host);

  Form form{"Form1", kClientArea, kBlue, "Tombolario"};
  MainMenu menu;
  poker::Table poker;
  videopoker::Table videopoker;
  domino::Table domino;
  chain::Table chain;
  ramino::Table ramino;
  mahjongg::Table mahjongg;

  std::array<Frame*, 12> all() {
    return {&menu.Frameprincipale, &poker.Frame2,  &poker.Frame2BIS,  &videopoker.Frame3,
            &videopoker.Frame3BIS, &domino.FRAME5, &domino.Frame5BIS, &chain.Frame4,
            &chain.Frame4BIS,      &ramino.frame6, &ramino.Frame6bis, &mahjongg.Frame7};
  }
  void opens(int game, Frame& screen);
  void open(Frame& screen);
  void leadsBack(Button& button, Frame& screen);
  void giveCursors();
};

Room::Screens::Screens(Host& host)
    : menu(form, host),
      poker(form, host),
      videopoker(form, host),
      domino(form, host),
      chain(form, host),
      ramino(form, host),
      mahjongg(form, host) {
  opens(1, poker.Frame2);
  opens(2, videopoker.Frame3);
  opens(3, domino.FRAME5);
  opens(4, chain.Frame4);
  opens(5, ramino.frame6);
  menu.commpr[6].onMouseDown = [this](MouseButton) {
    mahjongg.avvioMAH();
    open(mahjongg.Frame7);
  };

  leadsBack(poker.menupok, poker.Frame2);
  leadsBack(domino.MENUDOM, domino.FRAME5);
  leadsBack(ramino.MENURAM, ramino.frame6);
  leadsBack(mahjongg.Command17, mahjongg.Frame7);
  chain.menucat.onClick = [this] {
    chain.leave();
    changeScreen(chain.Frame4, menu.Frameprincipale);
  };
  videopoker.MENUVP.onClick = [this] {
    changeScreen(videopoker.Frame3, menu.Frameprincipale);
    videopoker.Framecen.Visible = false;
  };
}

/// A press of any mouse button on the game's entry in the menu shows its screen.
void Room::Screens::opens(int game, Frame& screen) {
  menu.commpr[game].onMouseDown = [this, &screen](MouseButton) { open(screen); };
}

void Room::Screens::open(Frame& screen) {
  changeScreen(menu.Frameprincipale, screen);
  menu.restGames();
}

void Room::Screens::leadsBack(Button& button, Frame& screen) {
  button.onClick = [this, &screen] { changeScreen(screen, menu.Frameprincipale); };
}

/// The menu's labels keep the cursors of the room. What is always there takes its own here; what a game
/// shows at each deal takes it at the deal.
void Room::Screens::giveCursors() {
  giveCursor(menu.Label13.MouseIcon, {&menu.CLINK[1],       &menu.CLINK[2],
                                      &videopoker.Command4, &videopoker.Command7,
                                      &videopoker.Command8, &videopoker.Command9,
                                      &videopoker.Command1, &videopoker.Command3,
                                      &videopoker.Command5, &poker.Command11,
                                      &poker.Command33,     &poker.Command55,
                                      &poker.Command15,     &videopoker.MENUVP,
                                      &poker.menupok,       &ramino.GIOCORAM,
                                      &ramino.MENURAM,      &poker.Command44,
                                      &menu.commpr[1],      &menu.commpr[2],
                                      &menu.commpr[3],      &menu.commpr[4],
                                      &menu.commpr[5],      &menu.commpr[6],
                                      &domino.giocodom,     &domino.MENUDOM,
                                      &domino.FINEDOM,      &domino.NUOVAPARDOM,
                                      &domino.passadomban,  &domino.Commdomban,
                                      &chain.menucat,       &chain.SALVACAT,
                                      &chain.CARCAT,        &chain.CoNTCAT,
                                      &chain.INICAT,        &chain.FINECA,
                                      &chain.nmcat,         &chain.SOSTITCAT,
                                      &chain.SCAMBIA,       &ramino.mazzoram,
                                      &ramino.tavoloram,    &ramino.ramturncom,
                                      &ramino.ramlas,       &ramino.Continuaramino,
                                      &ramino.ALTRORAM,     &ramino.ramesc,
                                      &ramino.scambiaram,   &mahjongg.ELPEDMAH,
                                      &mahjongg.CERPEDMAH,  &mahjongg.ALTRAPARTITAMAH,
                                      &mahjongg.Command17});
  giveCursor(menu.Label4.MouseIcon, {&domino.HScrolldom, &ramino.VScrollram1});
  giveCursor(menu.Label9.MouseIcon,
             {&poker.Op1, &poker.Op2, &domino.Opdom1, &domino.Opdom2, &domino.Opdom3, &domino.Opdom4,
              &ramino.Opram1, &ramino.Opram2, &chain.Optca1, &chain.Optca2, &poker.Option3, &poker.Option4});
}

Room::Room(Host& host) : screens_(std::make_unique<Screens>(host)) {}

Room::~Room() = default;

void Room::Form_Load() {
  screens_->domino.inizioDOMINO();
  screens_->chain.start();
  screens_->ramino.start();
  screens_->poker.start();
  screens_->giveCursors();
}

Form& Room::form() { return screens_->form; }

const Control& Room::screen() const {
  const auto all = screens_->all();
  return **std::find_if(all.begin(), all.end(), [](const Frame* screen) { return screen->Visible.get(); });
}

}  // namespace tombolario
