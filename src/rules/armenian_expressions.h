// Fixed expressions of Armenian source text: a trigger word and the words after it become one
// dictionary key (an Armenian key), or write a fixed English phrase. Each rule runs its tests in
// order; a test that matches does not stop the ones after it. All return by Finish.
#pragma once

namespace vorlexa {

class Engine;

void mekangam(Engine& e);      // մի: "մի քանի", "մի անգամ", "մի շարք", "մի քիչ", "մի խոսքով"
void ameninch(Engine& e);      // ամեն: "ամեն ինչ", "ամեն բան"
void dyuzninch(Engine& e);     // փոքր, դյուզն: "a little"
void ancav(Engine& e);         // անցավ: every second one in a sentence
void ansharzhguyq(Engine& e);  // անշարժ: "անշարժ գույք", real estate
void apatewoch(Engine& e);     // ապա: "ապա թե ոչ"
void teche(Engine& e);         // թե: "թե չէ"
void ardenisk(Engine& e);      // արդեն: "արդեն իսկ"
void barevdzez(Engine& e);     // բարև, բարեվ: "բարև ձեզ"
void barigood(Engine& e);      // բարի: sets GoodFlag; "բարի գալուստ"
void bariluyss(Engine& e);     // առավոտ, օր, երեկո ... after "բարի": "Good "
void luys(Engine& e);          // լույս: "բարի լույս", good morning
void mecgood(Engine& e);       // մեծ: "Մեծ Բրիտանիա"
void bozi_txa(Engine& e);      // բոզի: "բոզի տղա"
void hazivte(Engine& e);       // դժվար, հազիվ: "դժվար թե", "հազիվ հազ"
void esteutyan(Engine& e);     // ըստ: "ըստ էության", "ըստ իս"
void zhamslak(Engine& e);      // ժամացույցի: the hands of a clock
void ibrevte(Engine& e);       // իբր, իբրև, ասես: "as if"
void dsk(Engine& e);           // կոշտ: "կոշտ սկավառակ", hard disk
void hogtanel(Engine& e);      // հոգ: "հոգ տանել", take care
void hordancrev(Engine& e);    // հորդ: "հորդ անձրև", torrential
void harkkar(Engine& e);       // հարկ: "հարկ կա", there is need
void chishtnasac(Engine& e);   // ճիշտն: "ճիշտն ասած", to tell the truth
void odin(Engine& e);          // մեկ: "մեկ այլ", "մեկ առ մեկ"
void mekayl(Engine& e);        // from odin: "մեկ այլ", another
void menmenak(Engine& e);      // մեն: all
void MiddlEast(Engine& e);     // մերձավոր: "Մերձավոր Արևելք"
void shers(Engine& e);         // մեզի and its case forms
void hamarist(Engine& e);      // համարի and the case forms of "համար"
void xmas(Engine& e);          // մաս and its forms after "խոսքի": part of speech
void verimuch(Engine& e);      // շատ: "շատ լավ"
void shabat(Engine& e);        // շաբաթ: "շաբաթ օր"
void shutara(Engine& e);       // շուտ: "շուտ արեք", "շուտ արա", hurry up
void wordiw(Engine& e);        // որդու, որդով
void petqe(Engine& e);         // պետք: "պետք է", "պետք էր"
void vaxteush(Engine& e);      // վաղ: "վաղ թե ուշ", sooner or later
void ors(Engine& e);           // օրս: "until now"
void tak(Engine& e);           // տակ, վրա with a possessive ending: "under me", "on you"

// The look-up itself as a procedure of the select ("և").
void teqst_dblclick(Engine& e);

}  // namespace vorlexa
