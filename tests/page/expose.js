// The driver of this page, for the test.
globalThis.room = {
  answer: (line) => ccall('scripted_answer', 'string', ['string'], [line]),
  draw: () => _page_draw(_page_open()),
  centre: (name) => ccall('scripted_centre', 'string', ['string'], [name]).split(' ').map(Number),
};
