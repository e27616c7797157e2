// Fixed expressions of English source text: two or more words joined into one dictionary key, or
// written at once as a fixed Armenian phrase. The tests of a rule run one after another and do not
// stop at a match.
#pragma once

namespace vorlexa {

class Engine;

void bolor(Engine& e);             // all over, all round, all along, all right ...
void ibrev(Engine& e);             // as of, as well as, as soon as possible ...
void ispes(Engine& e);             // so called, so far, so on, so long
void since(Engine& e);             // since then
void khnami(Engine& e);            // mother, father, brother, sister in law
void harspesa(Engine& e);          // daughter, son in law
void human(Engine& e);             // human being, human rights
void middle(Engine& e);            // middle ages, middle east
void MerzavorArevelq(Engine& e);   // near east; near
void term(Engine& e);              // long-term, short-term
void woreve(Engine& e);            // each other
void kaptal(Engine& e);            // capital letter
void vrjkt(Engine& e);             // full stop
void posht(Engine& e);             // post office
void barcrakrt(Engine& e);         // higher education
void aylapes(Engine& e);           // or else
void artaqin(Engine& e);           // interior, foreign minister or affairs
void de_facto(Engine& e);          // de facto, de jure
void vaxtin(Engine& e);            // high time
void c_v(Engine& e);               // curriculum vitae
void zhame(Engine& e);             // o'clock
void tesakme(Engine& e);           // kind of, kind regards
void sofiknoc(Engine& e);          // health post
void woroshum(Engine& e);          // decision making
void woroshzhamanakov(Engine& e);  // (for the) time being
void vabshe(Engine& e);            // even though
void anhrazhesht(Engine& e);       // no matter
void motik(Engine& e);             // close to, close by
void ap(Engine& e);                // up coming, up to date, up to
void hete(Engine& e);              // along with
void gdot(Engine& e);              // good night, good looking, good bye ...
void rad(Engine& e);               // rather than
void dialoguebox(Engine& e);       // dialogue box
void ss(Engine& e);                // a lone "s": the plural of the word before
void yevst(Engine& e);             // too at a clause end
void yarab(Engine& e);             // have at a sentence start: have a nice, have a look
void anchaps(Engine& e);           // very much, very many
void inchani(Engine& e);           // any more
void hpart(Engine& e);             // proud of
void tesaket(Engine& e);           // point of view
void wasteloss(Engine& e);         // waste of
void icecream(Engine& e);          // ice cream
void wparty(Engine& e);            // wedding party
void gfloor(Engine& e);            // ground floor
void finearts(Engine& e);          // fine arts
void mayreni(Engine& e);           // native language
void dziauzh(Engine& e);           // horse power
void ansharzhguyk2(Engine& e);     // real estate
void zartucich(Engine& e);         // alarm clock
void dzmeruk(Engine& e);           // water melon
void nahang(Engine& e);            // leap year
void himnamijoc(Engine& e);        // fixed asset
void hacadul(Engine& e);           // hunger strike
void elkayan(Engine& e);           // power plant, power supply, power cut
void zapchast(Engine& e);          // spare part, spare time
void gisherel(Engine& e);          // stay overnight
void veravera(Engine& e);          // be over, over and over
void mekn(Engine& e);              // one another, one by one
void trir(Engine& e);              // pop up, pop down
void xach(Engine& e);              // crossing, crossed
void yerkar(Engine& e);            // long ago, long live, long run
void sepakanmijoc(Engine& e);      // on my own ...
void LastName(Engine& e);          // last name
void NerumnHaycel(Engine& e);      // sorry for
void SovorLinel(Engine& e);        // in use
void Preimas(Engine& e);           // pre-emptive
void TelAviv(Engine& e);           // Tel Aviv
void GetAp(Engine& e);             // river bank
void ShnorhakalQeznic(Engine& e);  // thank you
void HangamaNqner(Engine& e);      // issue as a circumstance
void Yndhakarakn(Engine& e);       // vice versa
void Sexm(Engine& e);              // tight-lipped, tight-fisted
void KoshtUkopit(Engine& e);       // hard disk, hard line, hard currency
void Hamashkharhayin(Engine& e);   // world war, world record
void dyu(Engine& e);               // due course, due to
void herakhosel(Engine& e);        // phone, computer after a verb of speech or work
void lezu(Engine& e);              // in English, in Armenian ...

}  // namespace vorlexa
