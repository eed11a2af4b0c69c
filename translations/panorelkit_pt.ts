<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>Panorel::Kit::Detail::ButtonCures</name>
    <message>
        <source>No layout is active.</source>
        <translation>Nenhuma disposição está ativa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is active.</source>
        <translation>&quot;%1&quot; está ativa.</translation>
    </message>
    <message>
        <source>A click goes to the next layout.</source>
        <translation>Um clique passa à disposição seguinte.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Cycle</name>
    <message>
        <source>&amp;Next Layout</source>
        <translation>&amp;Disposição seguinte</translation>
    </message>
    <message>
        <source>&amp;Previous Layout</source>
        <translation>Disposição &amp;anterior</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::DetailsPane</name>
    <message>
        <source>&amp;What differs from the windows now:</source>
        <translation>&amp;Diferenças em relação às janelas atuais:</translation>
    </message>
    <message>
        <source>Sho&amp;rtcut slot:</source>
        <translation>&amp;Posição do atalho:</translation>
    </message>
    <message>
        <source>What differs from the windows now</source>
        <translation>Diferenças em relação às janelas atuais</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot;</source>
        <translation>Imagem de &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Nothing. The windows look like this layout.</source>
        <translation>Nenhuma. As janelas estão como nesta disposição.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::FileEntries</name>
    <message>
        <source>Writes all layouts to a file</source>
        <translation>Escreve todas as disposições num ficheiro</translation>
    </message>
    <message>
        <source>Replaces all layouts by those of a file</source>
        <translation>Substitui todas as disposições pelas de um ficheiro</translation>
    </message>
    <message>
        <source>Adds the layouts of a file, in place of those of the same name</source>
        <translation>Adiciona as disposições de um ficheiro, no lugar das que têm o mesmo nome</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::GroupMenu</name>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Grupo</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportDialog</name>
    <message>
        <source>Yours of the same name:</source>
        <translation>A sua com o mesmo nome:</translation>
    </message>
    <message>
        <source>Import Layouts</source>
        <translation>Importar disposições</translation>
    </message>
    <message>
        <source>&amp;Layouts in &quot;%1&quot;:</source>
        <translation>&amp;Disposições em &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Layouts of the file</source>
        <translation>Disposições do ficheiro</translation>
    </message>
    <message>
        <source>In the file:</source>
        <translation>No ficheiro:</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Manter ambas</translation>
    </message>
    <message>
        <source>&amp;Replace yours</source>
        <translation>&amp;Substituir a sua</translation>
    </message>
    <message>
        <source>&amp;Skip</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Não selecionar nada</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>Im&amp;portar</translation>
    </message>
    <message>
        <source>Picture of &quot;%1&quot; in the file</source>
        <translation>Imagem de &quot;%1&quot; no ficheiro</translation>
    </message>
    <message>
        <source>Picture of your &quot;%1&quot;</source>
        <translation>Imagem da sua &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The name is taken:</source>
        <translation>O nome já está em uso:</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ImportModel</name>
    <message>
        <source>Replaces your layout of this name</source>
        <translation>Substitui a sua disposição com este nome</translation>
    </message>
    <message>
        <source>Added as &quot;%1&quot;</source>
        <translation>Adicionada como &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Adicionada</translation>
    </message>
    <message>
        <source>You have it already</source>
        <translation>Já a tem</translation>
    </message>
    <message>
        <source>Not imported, the name is taken</source>
        <translation>Não importada, o nome já está em uso</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>Não importada</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Keeper</name>
    <message>
        <source>The layouts in %1 are of another version of this program. They stay as they are.</source>
        <translation>As disposições em %1 são de outra versão deste programa. Permanecem como estão.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Está danificado.</translation>
    </message>
    <message>
        <source>Some of the layouts in %1 are damaged and were left out.</source>
        <translation>Algumas das disposições em %1 estão danificadas e foram omitidas.</translation>
    </message>
    <message>
        <source>It is of another version of this program, or damaged.</source>
        <translation>É de outra versão deste programa ou está danificado.</translation>
    </message>
    <message>
        <source>The layouts could not be saved in %1: %2</source>
        <translation>Não foi possível guardar as disposições em %1: %2</translation>
    </message>
    <message>
        <source>The file with your layouts, %1, cannot be read. %2</source>
        <translation>Não é possível ler o ficheiro com as suas disposições, %1. %2</translation>
    </message>
    <message>
        <source>It is kept as %1.</source>
        <translation>É conservado como %1.</translation>
    </message>
    <message>
        <source>It stays as it is, and layouts are not saved in this run.</source>
        <translation>Permanece como está e as disposições não serão guardadas nesta sessão.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::KitEntries</name>
    <message>
        <source>&amp;Manage Layouts...</source>
        <translation>G&amp;erir disposições...</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutCommands</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Mudar o nome de &quot;%1&quot; para &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Eliminar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete Layouts</source>
        <translation>Eliminar disposições</translation>
    </message>
    <message>
        <source>Duplicate &quot;%1&quot;</source>
        <translation>Duplicar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Duplicate Layouts</source>
        <translation>Duplicar disposições</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Mover &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Move Layouts</source>
        <translation>Mover disposições</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Imported from &quot;%1&quot;: %2</source>
        <translation>Importado de &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;: %2</source>
        <translation>Exportado para &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsDialog</name>
    <message>
        <source>Layouts</source>
        <translation>Disposições</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>&amp;Switch</source>
        <translation>&amp;Ativar</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Mudar o nome</translation>
    </message>
    <message>
        <source>Du&amp;plicate</source>
        <translation>D&amp;uplicar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Mover para &amp;cima</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Mover para &amp;baixo</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>Move to &amp;Group</source>
        <translation>Mover para &amp;o grupo</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Arranges the windows as in the chosen layout</source>
        <translation>Organiza as janelas como na disposição escolhida</translation>
    </message>
    <message>
        <source>Slot %1</source>
        <translation>Posição %1</translation>
    </message>
    <message>
        <source>modified</source>
        <translation>modificada</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsModel</name>
    <message>
        <source>Active</source>
        <translation>Ativa</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::LayoutsView</name>
    <message>
        <source>There are no layouts yet. Save one in the menu &quot;Layouts&quot;.</source>
        <translation>Ainda não há disposições. Guarde uma no menu &quot;Disposições&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Lock</name>
    <message>
        <source>Loc&amp;k Layout</source>
        <translation>&amp;Bloquear a disposição</translation>
    </message>
    <message>
        <source>Nothing can be moved, floated or closed by accident</source>
        <translation>Nada pode ser movido, separado ou fechado por acidente</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::ModifiedEntries</name>
    <message>
        <source>Save Layout</source>
        <translation>Guardar a disposição</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Guardar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to Layout</source>
        <translation>Voltar à disposição</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Voltar a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>and more</source>
        <translation>e mais</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameEdit</name>
    <message>
        <source>Name of the layout</source>
        <translation>Nome da disposição</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::NameField</name>
    <message>
        <source>New name, then Return</source>
        <translation>Nome novo, depois Enter</translation>
    </message>
    <message>
        <source>Name of the new layout</source>
        <translation>Nome da nova disposição</translation>
    </message>
    <message>
        <source>A layout needs a name: type one, then press Return.</source>
        <translation>Uma disposição precisa de um nome: escreva-o e prima Enter.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Slots</name>
    <message>
        <source>Use S&amp;hortcuts</source>
        <translation>&amp;Usar atalhos</translation>
    </message>
    <message>
        <source>%1 to %2 go to the layouts that were given these keys</source>
        <translation>%1 a %2 ativam as disposições a que estas teclas estão atribuídas</translation>
    </message>
    <message>
        <source>Empty Slot %1</source>
        <translation>Posição %1 vazia</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Detail::Transfer</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>&quot;%1&quot; não é um ficheiro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>Não é possível escrever &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Exported the layouts to &quot;%1&quot;.</source>
        <translation>As disposições foram exportadas para &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>it holds no layouts</source>
        <translation>não contém disposições</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not imported: %2</source>
        <translation>&quot;%1&quot; não foi importado: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no layouts for this program.</source>
        <translation>&quot;%1&quot; não contém disposições para este programa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read.</source>
        <translation>Não é possível ler &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;.</source>
        <translation>As disposições de &quot;%1&quot; foram importadas.</translation>
    </message>
    <message>
        <source>Imported the layouts of &quot;%1&quot;; damaged parts were left out.</source>
        <translation>As disposições de &quot;%1&quot; foram importadas; as partes danificadas foram omitidas.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Difference</name>
    <message>
        <source>left</source>
        <translation>esquerda</translation>
    </message>
    <message>
        <source>right</source>
        <translation>direita</translation>
    </message>
    <message>
        <source>top</source>
        <translation>topo</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>fundo</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sem nome)</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1 is no longer a tab</source>
        <translation>%1 já não é um separador</translation>
    </message>
    <message>
        <source>The tab %1 is now in front</source>
        <translation>O separador %1 está agora à frente</translation>
    </message>
    <message>
        <source>%1 is now a tab beside %2</source>
        <translation>%1 é agora um separador ao lado de %2</translation>
    </message>
    <message>
        <source>%1 moved on the desktop</source>
        <translation>%1 mudou de lugar no ambiente de trabalho</translation>
    </message>
    <message>
        <source>%1 is now a window of its own</source>
        <translation>%1 é agora uma janela própria</translation>
    </message>
    <message>
        <source>%1 is no longer a window of its own</source>
        <translation>%1 já não é uma janela própria</translation>
    </message>
    <message>
        <source>%1 is now beside its neighbours</source>
        <translation>%1 está agora ao lado dos seus vizinhos</translation>
    </message>
    <message>
        <source>%1 is now above or below its neighbours</source>
        <translation>%1 está agora acima ou abaixo dos seus vizinhos</translation>
    </message>
    <message>
        <source>%1 has another place among its neighbours</source>
        <translation>%1 tem outro lugar entre os seus vizinhos</translation>
    </message>
    <message>
        <source>%1 moved from line %2 to line %3</source>
        <translation>%1 passou da linha %2 para a linha %3</translation>
    </message>
    <message>
        <source>%1 was added</source>
        <translation>%1 foi adicionado</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 foi removido</translation>
    </message>
    <message>
        <source>%1 moved from %2 to %3</source>
        <translation>%1 passou de %2 para %3</translation>
    </message>
    <message>
        <source>%1 is open</source>
        <translation>%1 está aberto</translation>
    </message>
    <message>
        <source>%1 is closed</source>
        <translation>%1 está fechado</translation>
    </message>
    <message>
        <source>%1 changed its size from %2 to %3</source>
        <translation>%1 mudou de tamanho de %2 para %3</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::DifferencesNow</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::History</name>
    <message>
        <source>Rename &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Mudar o nome de &quot;%1&quot; para &quot;%2&quot;</translation>
    </message>
    <message>
        <source>New &quot;%1&quot;</source>
        <translation>Criar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Eliminar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Save &quot;%1&quot;</source>
        <translation>Guardar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reorder Layouts</source>
        <translation>Reordenar disposições</translation>
    </message>
    <message>
        <source>Switch to &quot;%1&quot;</source>
        <translation>Mudar para &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Switch to Group &quot;%1&quot;</source>
        <translation>Mudar para o grupo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Voltar a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Change Layouts</source>
        <translation>Alterar disposições</translation>
    </message>
    <message>
        <source>Import &quot;%1&quot;</source>
        <translation>Importar &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::ImportSource</name>
    <message>
        <source>Nothing in &quot;%1&quot; can be imported: %2</source>
        <translation>Não é possível importar nada de &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Damaged, so left out: %1.</source>
        <translation>Danificado, por isso omitido: %1.</translation>
    </message>
    <message>
        <source>Without their damaged parts: %1.</source>
        <translation>Sem as partes danificadas: %1.</translation>
    </message>
    <message>
        <source>Of groups that this program does not have, so left out: %1.</source>
        <translation>De grupos que este programa não tem, por isso omitido: %1.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutDocument</name>
    <message>
        <source>&quot;%1&quot; cannot be here in &quot;%2&quot;</source>
        <translation>&quot;%1&quot; não pode estar aqui em &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the root &quot;ViewData&quot;</source>
        <translation>&quot;%1&quot; não é a raiz &quot;ViewData&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in &quot;%2&quot;</source>
        <translation>Falta &quot;%1&quot; em &quot;%2&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; lacks the attribute &quot;%1&quot;</source>
        <translation>Falta a &quot;%2&quot; o atributo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%2&quot; has the unknown attribute &quot;%1&quot;</source>
        <translation>&quot;%2&quot; tem o atributo desconhecido &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;Active&quot; cannot be &quot;%1&quot;</source>
        <translation>&quot;Active&quot; não pode ser &quot;%1&quot;</translation>
    </message>
    <message>
        <source>There cannot be text in &quot;%1&quot;</source>
        <translation>Não pode haver texto em &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The state in &quot;%1&quot; is not an even number of digits</source>
        <translation>O estado em &quot;%1&quot; não tem um número par de dígitos</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutEdits</name>
    <message>
        <source>A layout needs a name.</source>
        <translation>Uma disposição precisa de um nome.</translation>
    </message>
    <message>
        <source>A name cannot have control characters.</source>
        <translation>Um nome não pode conter caracteres de controlo.</translation>
    </message>
    <message>
        <source>There is a layout of this name already.</source>
        <translation>Já existe uma disposição com este nome.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::LayoutFile</name>
    <message>
        <source>The file is larger than the limit of %1</source>
        <translation>O ficheiro excede o limite de %1</translation>
    </message>
    <message>
        <source>This is not a regular file</source>
        <translation>Este não é um ficheiro normal</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>O ficheiro está vazio</translation>
    </message>
    <message>
        <source>There are no layouts in the file</source>
        <translation>Não há disposições no ficheiro</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Layouts</name>
    <message>
        <source>The dock widget &quot;%1&quot; has no object name.</source>
        <translation>O painel acoplável &quot;%1&quot; não tem nome de objeto.</translation>
    </message>
    <message>
        <source>Several dock widgets have the object name &quot;%1&quot;.</source>
        <translation>Vários painéis acopláveis têm o nome de objeto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The tool bar &quot;%1&quot; has no object name.</source>
        <translation>A barra de ferramentas &quot;%1&quot; não tem nome de objeto.</translation>
    </message>
    <message>
        <source>Several tool bars have the object name &quot;%1&quot;.</source>
        <translation>Várias barras de ferramentas têm o nome de objeto &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The dock widget &quot;%1&quot; is in none of the window&apos;s areas.</source>
        <translation>O painel acoplável &quot;%1&quot; não está em nenhuma das áreas da janela.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; has no central widget.</source>
        <translation>A janela &quot;%1&quot; não tem elemento central.</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Menu</name>
    <message>
        <source>&amp;Layouts</source>
        <translation>&amp;Disposições</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposições</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::Problem</name>
    <message>
        <source>Dock widgets are on a side that does not exist</source>
        <translation>Há painéis acopláveis num lado que não existe</translation>
    </message>
    <message>
        <source>The state is damaged</source>
        <translation>O estado está danificado</translation>
    </message>
    <message>
        <source>Dock widgets are nested too deeply</source>
        <translation>Há painéis acopláveis aninhados a demasiada profundidade</translation>
    </message>
    <message>
        <source>The state describes more than a window can have</source>
        <translation>O estado descreve mais do que uma janela pode ter</translation>
    </message>
    <message>
        <source>The document is damaged: %1</source>
        <translation>O documento está danificado: %1</translation>
    </message>
    <message>
        <source>The document is not one of layouts: %1</source>
        <translation>O documento não é um documento de disposições: %1</translation>
    </message>
    <message>
        <source>The document has the unknown version &quot;%1&quot;</source>
        <translation>O documento tem a versão desconhecida &quot;%1&quot;</translation>
    </message>
    <message>
        <source>This is not the state of a window</source>
        <translation>Este não é o estado de uma janela</translation>
    </message>
    <message>
        <source>A layout has no name</source>
        <translation>Uma disposição não tem nome</translation>
    </message>
    <message>
        <source>Several layouts have the name &quot;%1&quot;</source>
        <translation>Várias disposições têm o nome &quot;%1&quot;</translation>
    </message>
    <message>
        <source>A dock widget or tool bar has no name</source>
        <translation>Um painel acoplável ou uma barra de ferramentas não tem nome</translation>
    </message>
    <message>
        <source>Several dock widgets or tool bars have the name &quot;%1&quot;</source>
        <translation>Vários painéis acopláveis ou barras de ferramentas têm o nome &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Merging has repeated dock widgets or tool bars</source>
        <translation>A combinação repetiu painéis acopláveis ou barras de ferramentas</translation>
    </message>
    <message>
        <source>Dock widgets float as tabs; merging this state loses its tool bars</source>
        <translation>Há painéis acopláveis a flutuar como separadores; ao combinar este estado perdem-se as suas barras de ferramentas</translation>
    </message>
    <message>
        <source>Tool bars are on a side that does not exist</source>
        <translation>Há barras de ferramentas num lado que não existe</translation>
    </message>
</context>
<context>
    <name>Panorel::Kit::StepActions</name>
    <message>
        <source>Undo</source>
        <translation>Anular</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Anular: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Refazer: %1</translation>
    </message>
</context>
<context>
    <name>Panorel::Plugin::ButtonBar</name>
    <message>
        <source>Show Button in a Tool Bar</source>
        <translation>Mostrar o botão numa barra de ferramentas</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposições</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool</name>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>não existe o comando &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;; see &quot;panorel help&quot;</source>
        <translation>não existe o comando &quot;%1&quot;; consulte &quot;panorel help&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CheckCommand</name>
    <message>
        <source>byte %1</source>
        <translation>byte %1</translation>
    </message>
    <message>
        <source>document</source>
        <translation>documento</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>em bom estado</translation>
    </message>
    <message>
        <source>Prints nothing.</source>
        <translation>Não mostra nada.</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Mostra JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Choice</name>
    <message>
        <source>there is no group &quot;%1&quot;; there are: %2</source>
        <translation>não existe o grupo &quot;%1&quot;; existentes: %2</translation>
    </message>
    <message>
        <source>there is no layout &quot;%1&quot;; there are: %2</source>
        <translation>não existe a disposição &quot;%1&quot;; existentes: %2</translation>
    </message>
    <message>
        <source>there is no window &quot;%1&quot;; there are: %2</source>
        <translation>não existe a janela &quot;%1&quot;; existentes: %2</translation>
    </message>
    <message>
        <source>--view and --current exclude each other</source>
        <translation>--view e --current excluem-se mutuamente</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>Only this group.</source>
        <translation>Só este grupo.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>Only this layout.</source>
        <translation>Só esta disposição.</translation>
    </message>
    <message>
        <source>Only the working layout of a group.</source>
        <translation>Só a disposição de trabalho de um grupo.</translation>
    </message>
    <message>
        <source>Only this window; in a settings file, the state at SECTION/KEY.</source>
        <translation>Só esta janela; num ficheiro de configuração, o estado em SECÇÃO/CHAVE.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>has neither groups nor named layouts</source>
        <translation>não tem grupos nem disposições com nome</translation>
    </message>
    <message>
        <source>is the state of one window, which has no id</source>
        <translation>é o estado de uma só janela, que não tem ID</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra esta ajuda.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Mostra a versão.</translation>
    </message>
    <message>
        <source>a file is missing</source>
        <translation>falta um ficheiro</translation>
    </message>
    <message>
        <source>too many files</source>
        <translation>demasiados ficheiros</translation>
    </message>
    <message>
        <source>%1 is given more than once</source>
        <translation>%1 foi indicado mais de uma vez</translation>
    </message>
    <message>
        <source>the option %1 is missing</source>
        <translation>falta a opção %1</translation>
    </message>
    <message>
        <source>%1; see &quot;panorel help %2&quot;</source>
        <translation>%1; consulte &quot;panorel help %2&quot;</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Commands</name>
    <message>
        <source>Tells whether windows can be given the layouts of files without harm.</source>
        <translation>Indica se as janelas podem receber sem danos as disposições de ficheiros.</translation>
    </message>
    <message>
        <source>Tells what the layouts of a file say.</source>
        <translation>Indica o que contêm as disposições de um ficheiro.</translation>
    </message>
    <message>
        <source>Tells in what layouts differ.</source>
        <translation>Indica em que diferem as disposições.</translation>
    </message>
    <message>
        <source>Draws a layout as a picture, PNG or SVG.</source>
        <translation>Desenha uma disposição como imagem, PNG ou SVG.</translation>
    </message>
    <message>
        <source>Leaves out what merging has repeated, and layouts without a name.</source>
        <translation>Omite o que a combinação repetiu e as disposições sem nome.</translation>
    </message>
    <message>
        <source>Copies layouts of one document into another.</source>
        <translation>Copia disposições de um documento para outro.</translation>
    </message>
    <message>
        <source>Renames a layout, or a window in all layouts.</source>
        <translation>Muda o nome de uma disposição, ou de uma janela em todas as disposições.</translation>
    </message>
    <message>
        <source>Moves a layout to another place in its group.</source>
        <translation>Move uma disposição para outro lugar do seu grupo.</translation>
    </message>
    <message>
        <source>Removes layouts from a document.</source>
        <translation>Remove disposições de um documento.</translation>
    </message>
    <message>
        <source>Usage: panorel COMMAND ...</source>
        <translation>Utilização: panorel COMANDO ...</translation>
    </message>
    <message>
        <source>&quot;panorel help COMMAND&quot; tells how a command is used. A FILE is a document of layouts, the state of one window, or a settings file that holds such states; &quot;-&quot; is standard input.</source>
        <translation>&quot;panorel help COMANDO&quot; explica como se usa um comando. Um FILE é um documento de disposições, o estado de uma janela ou um ficheiro de configuração que contém tais estados; &quot;-&quot; é a entrada padrão.</translation>
    </message>
    <message>
        <source>Starts a Qt 5 program with a menu for the layouts of its windows.</source>
        <translation>Inicia um programa Qt 5 com um menu para as disposições das suas janelas.</translation>
    </message>
    <message>
        <source>Lets the desktop start a program by &quot;panorel run&quot;.</source>
        <translation>Faz com que o ambiente de trabalho inicie um programa com &quot;panorel run&quot;.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Console</name>
    <message>
        <source>cannot write to standard output</source>
        <translation>não é possível escrever na saída padrão</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::DiffCommand</name>
    <message>
        <source>has several layouts; choose one by --group and --view</source>
        <translation>tem várias disposições; escolha uma com --group e --view</translation>
    </message>
    <message>
        <source>Only in %1: %2</source>
        <translation>Só em %1: %2</translation>
    </message>
    <message>
        <source>No difference</source>
        <translation>Nenhuma diferença</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Mostra JSON.</translation>
    </message>
    <message>
        <source>Compares the layout of --view with this one, of the same file if there is no B.</source>
        <translation>Compara a disposição de --view com esta, do mesmo ficheiro se B não for indicado.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>there is nothing to compare with</source>
        <translation>não há nada com que comparar</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::EditCommands</name>
    <message>
        <source>The file to write; &quot;-&quot; is standard output.</source>
        <translation>O ficheiro a escrever; &quot;-&quot; é a saída padrão.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SAÍDA</translation>
    </message>
    <message>
        <source>The group of the layout.</source>
        <translation>O grupo da disposição.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>The layout.</source>
        <translation>A disposição.</translation>
    </message>
    <message>
        <source>the option %1 is missing; there are: %2</source>
        <translation>falta a opção %1; existentes: %2</translation>
    </message>
    <message>
        <source>Replaces layouts whose names are there already.</source>
        <translation>Substitui as disposições cujos nomes já existem.</translation>
    </message>
    <message>
        <source>Copies layouts under another name where theirs is there already.</source>
        <translation>Copia as disposições com outro nome quando o seu já existe.</translation>
    </message>
    <message>
        <source>--replace and --keep-both exclude each other</source>
        <translation>--replace e --keep-both excluem-se mutuamente</translation>
    </message>
    <message>
        <source>The window to rename in all layouts.</source>
        <translation>A janela cujo nome muda em todas as disposições.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The new name.</source>
        <translation>O novo nome.</translation>
    </message>
    <message>
        <source>a window is renamed in all layouts</source>
        <translation>o nome de uma janela muda em todas as disposições</translation>
    </message>
    <message>
        <source>The layout to move it before.</source>
        <translation>A disposição antes da qual fica.</translation>
    </message>
    <message>
        <source>OTHER</source>
        <translation>OUTRA</translation>
    </message>
    <message>
        <source>Moves it after all others.</source>
        <translation>Move-a para depois de todas as outras.</translation>
    </message>
    <message>
        <source>either --before or --last is needed</source>
        <translation>é necessário --before ou --last</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Input</name>
    <message>
        <source>--%1 needs a number</source>
        <translation>--%1 precisa de um número</translation>
    </message>
    <message>
        <source>holds no layout</source>
        <translation>não contém nenhuma disposição</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sem nome)</translation>
    </message>
    <message>
        <source>(working layout)</source>
        <translation>(disposição de trabalho)</translation>
    </message>
    <message>
        <source>(tool bars)</source>
        <translation>(barras de ferramentas)</translation>
    </message>
    <message>
        <source>Reads files of up to this size in MiB, %1 if it is not given; 0 lifts the limit.</source>
        <translation>Lê ficheiros até este tamanho em MiB, %1 se não for indicado; 0 elimina o limite.</translation>
    </message>
    <message>
        <source>MIB</source>
        <translation>MIB</translation>
    </message>
    <message>
        <source>is not a document of layouts</source>
        <translation>não é um documento de disposições</translation>
    </message>
    <message>
        <source>is written again as a whole, because of its document type or encoding</source>
        <translation>é escrito de novo na íntegra, devido ao tipo de documento ou à codificação</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>está danificado</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 está danificado</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>não é possível ler</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::LauncherCommand</name>
    <message>
        <source>there is no such launcher</source>
        <translation>esse lançador não existe</translation>
    </message>
    <message>
        <source>starts no program</source>
        <translation>não inicia nenhum programa</translation>
    </message>
    <message>
        <source>starts a program that has its own Qt, which does not load plugins</source>
        <translation>inicia um programa que tem o seu próprio Qt, que não carrega extensões</translation>
    </message>
    <message>
        <source>is a launcher of your own and stays as it is</source>
        <translation>é um lançador criado por si e fica como está</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Deixa as barras de ferramentas como estão ao mudar de disposição.</translation>
    </message>
    <message>
        <source>Takes the launcher away again.</source>
        <translation>Volta a remover o lançador.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RenderCommand</name>
    <message>
        <source>Window layout</source>
        <translation>Disposição das janelas</translation>
    </message>
    <message>
        <source>--size needs a width and a height of up to %1 pixels, such as 800x600</source>
        <translation>--size precisa de uma largura e de uma altura até %1 píxeis, como 800x600</translation>
    </message>
    <message>
        <source>the picture is too large; choose one window by --window</source>
        <translation>a imagem é demasiado grande; escolha uma janela com --window</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>a imagem é demasiado grande</translation>
    </message>
    <message>
        <source>The picture to write: SVG if the name ends in &quot;.svg&quot;, else PNG.</source>
        <translation>A imagem a escrever: SVG se o nome terminar em &quot;.svg&quot;; senão, PNG.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SAÍDA</translation>
    </message>
    <message>
        <source>Size of each window in pixels; its own, at most %1 wide, if it is not given.</source>
        <translation>Tamanho de cada janela em píxeis; se não for indicado, o seu próprio, com a largura máxima de %1.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>LxA</translation>
    </message>
    <message>
        <source>Draws in dark colours.</source>
        <translation>Desenha em cores escuras.</translation>
    </message>
    <message>
        <source>holds no state of a window</source>
        <translation>não contém o estado de nenhuma janela</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::RunCommand</name>
    <message>
        <source>it cannot be started</source>
        <translation>não pode ser iniciado</translation>
    </message>
    <message>
        <source>Leaves tool bars as they are when a layout is switched.</source>
        <translation>Deixa as barras de ferramentas como estão ao mudar de disposição.</translation>
    </message>
    <message>
        <source>Shows which programs have layouts, and starts none.</source>
        <translation>Mostra que programas têm disposições, sem iniciar nenhum.</translation>
    </message>
    <message>
        <source>--list takes no program</source>
        <translation>--list não aceita um programa</translation>
    </message>
    <message>
        <source>a program is missing</source>
        <translation>falta um programa</translation>
    </message>
    <message>
        <source>the plugin is not installed (Debian: panorel-plugin)</source>
        <translation>a extensão não está instalada (Debian: panorel-plugin)</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::ShowCommand</name>
    <message>
        <source>Window &quot;%1&quot;</source>
        <translation>Janela &quot;%1&quot;</translation>
    </message>
    <message>
        <source>User data: %1</source>
        <translation>Dados do utilizador: %1</translation>
    </message>
    <message>
        <source>Group &quot;%1&quot;</source>
        <translation>Grupo &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot; (active)</source>
        <translation>Disposição &quot;%1&quot; (ativa)</translation>
    </message>
    <message>
        <source>Layout &quot;%1&quot;</source>
        <translation>Disposição &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Working layout</source>
        <translation>Disposição de trabalho</translation>
    </message>
    <message>
        <source>Tool bars when it was written</source>
        <translation>Barras de ferramentas no momento da escrita</translation>
    </message>
    <message>
        <source>Prints JSON.</source>
        <translation>Mostra JSON.</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::Sides</name>
    <message>
        <source>left</source>
        <translation>esquerda</translation>
    </message>
    <message>
        <source>right</source>
        <translation>direita</translation>
    </message>
    <message>
        <source>top</source>
        <translation>topo</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>fundo</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::StateText</name>
    <message>
        <source>(without a name)</source>
        <translation>(sem nome)</translation>
    </message>
    <message>
        <source>at %1, %2</source>
        <translation>em %1, %2</translation>
    </message>
    <message>
        <source>(in front)</source>
        <translation>(à frente)</translation>
    </message>
    <message>
        <source>Tabs:</source>
        <translation>Separadores:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Esquerda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Direita:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Topo:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Fundo:</translation>
    </message>
    <message>
        <source>On a side that does not exist:</source>
        <translation>Num lado que não existe:</translation>
    </message>
    <message>
        <source>Floating:</source>
        <translation>Flutuantes:</translation>
    </message>
    <message>
        <source>Closed:</source>
        <translation>Fechados:</translation>
    </message>
    <message>
        <source>(floating)</source>
        <translation>(flutuante)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(oculta)</translation>
    </message>
    <message>
        <source>Tool bars, %1, line %2:</source>
        <translation>Barras de ferramentas, %1, linha %2:</translation>
    </message>
    <message>
        <source>Not the state of a window, or damaged (size: %1)</source>
        <translation>Não é o estado de uma janela ou está danificado (tamanho: %1)</translation>
    </message>
    <message>
        <source>Central area: %1</source>
        <translation>Área central: %1</translation>
    </message>
    <message>
        <source>Neither dock widgets nor tool bars</source>
        <translation>Nem painéis acopláveis nem barras de ferramentas</translation>
    </message>
</context>
<context>
    <name>Panorel::Tool::TidyCommand</name>
    <message>
        <source>is not sound; see &quot;panorel check&quot;</source>
        <translation>não está em bom estado; consulte &quot;panorel check&quot;</translation>
    </message>
    <message>
        <source>left out %1: %2</source>
        <translation>omitido: %1: %2</translation>
    </message>
    <message>
        <source>a state is not written over its settings file</source>
        <translation>um estado não é escrito sobre o seu ficheiro de configuração</translation>
    </message>
    <message>
        <source>Writes this file and not standard output.</source>
        <translation>Escreve neste ficheiro em vez de na saída padrão.</translation>
    </message>
    <message>
        <source>OUT</source>
        <translation>SAÍDA</translation>
    </message>
    <message>
        <source>Keeps layouts without a name.</source>
        <translation>Mantém as disposições sem nome.</translation>
    </message>
    <message>
        <source>Leaves out states that are not sound, and says so.</source>
        <translation>Omite os estados que não estão em bom estado e comunica-o.</translation>
    </message>
    <message>
        <source>The state at SECTION/KEY of a settings file.</source>
        <translation>O estado em SECÇÃO/CHAVE de um ficheiro de configuração.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>--window is for settings files</source>
        <translation>--window destina-se a ficheiros de configuração</translation>
    </message>
    <message>
        <source>has several states; choose one by --window</source>
        <translation>tem vários estados; escolha um com --window</translation>
    </message>
</context>
</TS>
