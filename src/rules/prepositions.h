// English prepositions and articles. A preposition writes nothing where it stands: it becomes
// PendingEnding, the case ending or postposition that the next noun carries, unless it begins one
// of its fixed phrases. The articles set ArticleEnding or give the indefinite "one-".
#pragma once

namespace vorlexa {

class Engine;

void AtProcedure(Engine& e);
void FromProcedure(Engine& e);
void ByProcedure(Engine& e);
void WithProcedure(Engine& e);
void OnProcedure(Engine& e);
void InProcedure(Engine& e);
void ForProcedure(Engine& e);
void OutOfProcedure(Engine& e);
void yetqe(Engine& e);  // after
void after(Engine& e);  // "after all", "after a while"
void zqez(Engine& e);   // to
void AAnProcedure(Engine& e);
void DefArtProcedure(Engine& e);
void QwestionWorsProcedure(Engine& e);
void oof(Engine& e);  // Accurate Translation: "X of Y" written as Y's X

}  // namespace vorlexa
