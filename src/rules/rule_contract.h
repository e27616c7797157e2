// The two output helpers every rule shares (mctn, pokrmc) and the rules for auxiliaries,
// negation and a few verbs of both directions. Each rule works on the engine's members alone:
// it reads the source ahead of ScanPos, may replace CurrentWord by a dictionary key, skip words,
// write at once, or set what the next words will read.
#pragma once

namespace vorlexa {

class Engine;

void mctn(Engine& e);    // put InsertText into the output (before the word before, under IMPV)
void pokrmc(Engine& e);  // capitalise the first letter of InsertText

void ToBeOrNotToBe(Engine& e);  // be, been, being
void EmEEnEin(Engine& e);       // am, is, are, was, were
void cnto(Engine& e);           // cannot
void kkamenal(Engine& e);       // would like, would love
void kkamenalPlyus(Engine& e);  // would, should
void erbeq(Engine& e);          // never, երբեք
void woch(Engine& e);           // ոչ, and "have not"
void karox(Engine& e);          // the negative copulas before "կարող", "կարելի"
void cavumem(Engine& e);        // i, we, ցավում: "I am sorry"
void hon(Engine& e);            // there
void nshnk(Engine& e);          // նշանակում

}  // namespace vorlexa
