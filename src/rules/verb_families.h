// Take, get, give, offer, live and die: frequent verbs with many phrasal senses, or a verb and a
// noun of one spelling. One rule per group of forms, so that the key put in their place keeps the
// form of the word it replaces.
#pragma once

namespace vorlexa {

class Engine;

void TakeProcedure(Engine& e);       // take
void TaksProcedure(Engine& e);       // takes
void TakingProcedure(Engine& e);     // taking
void TookTakenProcedure(Engine& e);  // took, taken
void GetGetsGettingProcedure(Engine& e);  // get, gets, getting: "get " + the next word
void GotProcedure(Engine& e);             // got
void GiveNerka(Engine& e);                // give, gives, giving: "give up"
void GiveAncyal(Engine& e);               // given, gave: "gave up"
void OfferProcedure(Engine& e);           // offers: the verb after a subject, else the noun
void LivesProcedure(Engine& e);           // lives
void DiesProcedure(Engine& e);            // dies

}  // namespace vorlexa
