// Phrasal verbs: a verb whose sense changes with the particle after it. The common shape is the
// tail swap: on a particle the verb gives way to a key that means the pair, the inflection the
// verb had ("ed", "ing", "s") is kept and put on the key, and ScanPos moves over the particle.
// The tests of a rule run one after another and do not stop at a match unless said so.
#pragma once

namespace vorlexa {

class Engine;

void varem_marem(Engine& e);     // turn off, on, out, adrift, around, down
void rule(Engine& e);            // rule out
void singl(Engine& e);           // single out
void spell(Engine& e);           // spell out
void spk_out(Engine& e);         // speak out; marks a verb of speech
void cry(Engine& e);             // cry up
void krel(Engine& e);            // carry out, work out; "work" as a noun
void Ashkhatutyun(Engine& e);    // carries out, works out; "works" as a noun
void lk(Engine& e);              // look at, after, forward, for, like, out
void hancnel(Engine& e);         // hand over
void fuck(Engine& e);            // fuck off
void find(Engine& e);            // find out
void shut(Engine& e);            // shut down, shut up
void switch_(Engine& e);         // switch off, on (the procedure "switch")
void pass(Engine& e);            // pass by, pass away
void lit(Engine& e);             // light up
void wait(Engine& e);            // wait for
void zartel(Engine& e);          // wake up
void pchel(Engine& e);           // blow up
void traqel(Engine& e);          // blew up, blown up
void havatal(Engine& e);         // believe in
void spid(Engine& e);            // speed up, down
void haytnvel(Engine& e);        // show up
void haxtaharel(Engine& e);      // fight down
void achrtel(Engine& e);         // grow up
void consist_of(Engine& e);      // consist of
void back_up(Engine& e);         // back from, back up
void deal(Engine& e);            // deal with
void kaynel(Engine& e);          // stop by
void geranel(Engine& e);         // log in, log out
void mutqaelqagrvel(Engine& e);  // sign in, sign out
void lcnellracnel(Engine& e);    // fill out, fill in
void Figurant(Engine& e);        // figure out
void Figurant2(Engine& e);       // figured out, figuring out
void caxinprcan(Engine& e);      // sold out
void xekavarats(Engine& e);      // headed (by)
void come(Engine& e);            // come true, back, across, up; run across ...
void areqinc(Engine& e);         // make sense, money, sure, nothing; make-up
void iron(Engine& e);            // the verb iron, iron out
void pahel(Engine& e);           // keep doing
void sharunakel1(Engine& e);     // go on, go through, going to, go-to
void sharunakel2(Engine& e);     // goes on, goes through
void sharunakel3(Engine& e);     // went on, went through
void meknel1(Engine& e);         // on leave, leave for
void meknel2(Engine& e);         // left for, the left side, the past of leave
void mrsel(Engine& e);           // catch cold, catch a chill, catch up with
void sxoc(Engine& e);            // saw: the tool, the verb to saw, or the past of see
void sxocel(Engine& e);          // sawed, sawing, saws
void dnel(Engine& e);            // put on, put in, put out: rewrites the particle out of the text
void NkarelUshadr(Engine& e);    // draw attention

}  // namespace vorlexa
