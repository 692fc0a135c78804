<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Quillon</name>
    <message>
        <source>Unknown...</source>
        <translation>Desconhecido...</translation>
    </message>
    <message>
        <source>Another program is using the file.</source>
        <translation>Outro programa está usando o arquivo.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>Não há mais espaço no disco.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>Não foi possível ler o disco ou gravar nele.</translation>
    </message>
    <message>
        <source>Rules and history could not be saved. They are kept while Quillon runs. %@</source>
        <translation>Não foi possível salvar as regras e o histórico. Eles são mantidos enquanto o Quillon estiver aberto. %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>The records were written by a newer version of Quillon</source>
        <translation>Os dados foram gravados por uma versão mais nova do Quillon</translation>
    </message>
    <message>
        <source>They are left untouched; please install that version again to use them: %@</source>
        <translation>Eles ficam intactos; para usá-los, instale novamente essa versão: %@</translation>
    </message>
    <message>
        <source>The records cannot be opened</source>
        <translation>Não é possível abrir os dados</translation>
    </message>
    <message>
        <source>%@

Rules and history are in this file, which is left as it is: %@</source>
        <translation>%@

As regras e o histórico estão neste arquivo, que fica como está: %@</translation>
    </message>
    <message>
        <source>Settings are damaged</source>
        <translation>As configurações estão danificadas</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file was left as it was: %@</source>
        <translation>O Quillon continua com o que conhece ou com seus valores padrão. O arquivo danificado ficou como estava: %@</translation>
    </message>
    <message>
        <source>Settings were damaged</source>
        <translation>As configurações estavam danificadas</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file is kept: %@</source>
        <translation>O Quillon continua com o que conhece ou com seus valores padrão. O arquivo danificado é mantido: %@</translation>
    </message>
    <message>
        <source>Settings cannot be read</source>
        <translation>Não é possível ler as configurações</translation>
    </message>
    <message>
        <source>Quillon uses its defaults and leaves the file alone: %@</source>
        <translation>O Quillon usa seus valores padrão e não mexe no arquivo: %@</translation>
    </message>
    <message>
        <source>Settings cannot be saved</source>
        <translation>Não é possível salvar as configurações</translation>
    </message>
    <message>
        <source>Changes last until Quillon quits. Please check the permissions of %@</source>
        <translation>As alterações valem até o Quillon ser fechado. Verifique as permissões de %@</translation>
    </message>
    <message>
        <source>There is no room left on the disk. Changes last until Quillon quits: %@</source>
        <translation>Não há mais espaço no disco. As alterações valem até o Quillon ser fechado: %@</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Não foi possível salvar as alterações ao sair. Sair mesmo assim?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Ao sair agora, serão perdidas todas as alterações feitas desde o último salvamento bem-sucedido</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Sair mesmo assim</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The account holds changes by a newer version of Quillon. Update it here to get them.</source>
        <translation>A conta contém alterações de uma versão mais nova do Quillon. Atualize-o aqui para recebê-las.</translation>
    </message>
    <message>
        <source>A file in the account is damaged, or somebody has changed it. It is left alone.</source>
        <translation>Um arquivo da conta está danificado, ou alguém o alterou. Ele fica como está.</translation>
    </message>
    <message>
        <source>The password of the account is not in the keyring. Sign in again.</source>
        <translation>A senha da conta não está no chaveiro. Entre novamente.</translation>
    </message>
    <message>
        <source>What is to be synced could not be stored on this computer.</source>
        <translation>Não foi possível guardar neste computador o que deve ser sincronizado.</translation>
    </message>
    <message>
        <source>This account is new. Repeat the passphrase.</source>
        <translation>Esta conta é nova. Repita a frase secreta.</translation>
    </message>
    <message>
        <source>The two passphrases differ.</source>
        <translation>As duas frases secretas são diferentes.</translation>
    </message>
    <message>
        <source>The passphrase is too short: it needs at least eight characters.</source>
        <translation>A frase secreta é curta demais: ela precisa de pelo menos oito caracteres.</translation>
    </message>
    <message>
        <source>The account has another passphrase.</source>
        <translation>A conta tem outra frase secreta.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is damaged. Put back an older copy of it.</source>
        <translation>O arquivo de chave da conta está danificado. Restaure uma cópia mais antiga.</translation>
    </message>
    <message>
        <source>The account was made by a newer version of Quillon.</source>
        <translation>A conta foi criada por uma versão mais nova do Quillon.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is missing. A computer that is signed in puts it back when it syncs next.</source>
        <translation>Falta o arquivo de chave da conta. Um computador conectado o repõe em sua próxima sincronização.</translation>
    </message>
    <message>
        <source>This computer has not enough free memory for that now.</source>
        <translation>Este computador não tem memória livre suficiente para isso agora.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Escolha uma pasta.</translation>
    </message>
    <message>
        <source>Enter the server&apos;s address.</source>
        <translation>Digite o endereço do servidor.</translation>
    </message>
    <message>
        <source>Enter a user name and a password.</source>
        <translation>Digite um nome de usuário e uma senha.</translation>
    </message>
    <message>
        <source>Enter a passphrase.</source>
        <translation>Digite uma frase secreta.</translation>
    </message>
    <message>
        <source>%@ did not let go of it</source>
        <translation>%@ não liberou a interface</translation>
    </message>
    <message>
        <source>Only the session in front of this computer may change it</source>
        <translation>Só uma sessão aberta neste próprio computador pode alterá-la</translation>
    </message>
    <message>
        <source>Please make sure you have installed the HelperTool</source>
        <translation>Verifique se a ferramenta auxiliar está instalada</translation>
    </message>
    <message>
        <source>%@ gives this network an Address of its own. Look for it in the network&apos;s settings</source>
        <translation>%@ dá a esta rede um endereço próprio. Procure-o nas configurações da rede</translation>
    </message>
    <message>
        <source>Please make sure your Device is enabled</source>
        <translation>Verifique se o dispositivo está ativado</translation>
    </message>
    <message>
        <source>%@ Address Changed</source>
        <translation>%@: endereço alterado</translation>
    </message>
    <message>
        <source>Your new MAC Address is: %@</source>
        <translation>O novo endereço MAC é: %@</translation>
    </message>
    <message>
        <source>Please connect it again with the program that connects it</source>
        <translation>Conecte-a novamente com o programa que a gerencia</translation>
    </message>
    <message>
        <source>Please connect it again with %@</source>
        <translation>Conecte-a novamente com %@</translation>
    </message>
    <message>
        <source>%@ is not connected again</source>
        <translation>%@ não foi reconectada</translation>
    </message>
    <message>
        <source>%@ keeps the IP Address of before</source>
        <translation>%@ mantém o endereço IP anterior</translation>
    </message>
    <message>
        <source>%@ keeps an IPv6 Address made from the old one</source>
        <translation>%@ mantém um endereço IPv6 formado com o anterior</translation>
    </message>
    <message>
        <source>%@ Address may be replaced</source>
        <translation>%@: o endereço pode ser substituído</translation>
    </message>
    <message>
        <source>This session may not control %@. The new Address holds until the interface connects the next time</source>
        <translation>Esta sessão não pode controlar %@. O novo endereço vale até a próxima conexão da interface</translation>
    </message>
    <message>
        <source>The new Address and the old Address are identical</source>
        <translation>O novo endereço e o anterior são idênticos</translation>
    </message>
    <message>
        <source>%@ Address was replaced</source>
        <translation>%@: endereço substituído</translation>
    </message>
    <message>
        <source>Another program keeps setting an Address of its own. Your rule acts again when you join a network</source>
        <translation>Outro programa define repetidamente um endereço próprio. A regra volta a agir na próxima conexão a uma rede</translation>
    </message>
    <message>
        <source>%@ Address was not Changed</source>
        <translation>%@: endereço não alterado</translation>
    </message>
    <message>
        <source>The interface does not say which address it has now.</source>
        <translation>A interface não diz qual é seu endereço agora.</translation>
    </message>
    <message>
        <source>Changed: this is the address in use now.</source>
        <translation>Alterado: este é agora o endereço em uso.</translation>
    </message>
    <message>
        <source>Not changed: %@.</source>
        <translation>Não alterado: %@.</translation>
    </message>
    <message>
        <source>Not connected again: look at the address when it is.</source>
        <translation>Ainda sem conexão: verifique o endereço depois.</translation>
    </message>
    <message>
        <source>Changed, but to another address than you asked for.</source>
        <translation>Alterado, mas não para o endereço pedido.</translation>
    </message>
    <message>
        <source>The address was not changed.</source>
        <translation>O endereço não foi alterado.</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>%@ now has %@ in place of %@.</source>
        <translation>%@ agora tem %@ no lugar de %@.</translation>
    </message>
    <message>
        <source>%@ owns this interface.</source>
        <translation>%@ gerencia esta interface.</translation>
    </message>
    <message>
        <source>%@ shows another Address</source>
        <translation>%@ mostra outro endereço</translation>
    </message>
    <message>
        <source>Apply again</source>
        <translation>Aplicar novamente</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Aceitar</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Isto não é um arquivo.</translation>
    </message>
    <message>
        <source>Show window</source>
        <translation>Mostrar a janela</translation>
    </message>
    <message>
        <source>Randomize address</source>
        <translation>Aleatorizar o endereço</translation>
    </message>
    <message>
        <source>Shortcut for “%@” not set</source>
        <translation>Atalho para “%@” não definido</translation>
    </message>
    <message>
        <source>A shortcut needs Ctrl, Alt or Meta and one more key.</source>
        <translation>Um atalho precisa de Ctrl, Alt ou Meta e mais uma tecla.</translation>
    </message>
    <message>
        <source>Another program uses this shortcut.</source>
        <translation>Outro programa usa este atalho.</translation>
    </message>
    <message>
        <source>The desktop refused this shortcut.</source>
        <translation>O ambiente gráfico recusou este atalho.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Este teclado não tem essa tecla.</translation>
    </message>
    <message>
        <source>This desktop does not let programs set global shortcuts.</source>
        <translation>Este ambiente gráfico não permite que programas definam atalhos globais.</translation>
    </message>
    <message>
        <source>Quillon requires Location Services to determine your current network details</source>
        <translation>O Quillon precisa dos serviços de localização para obter os detalhes da rede atual</translation>
    </message>
    <message>
        <source>You need to give Quillon access in System Settings &gt; Privacy &amp; Security &gt; Privacy &gt; Location Services</source>
        <translation>O acesso é dado ao Quillon em Configurações do sistema &gt; Privacidade e segurança &gt; Privacidade &gt; Serviços de localização</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Random Address</source>
        <translation>Endereço aleatório</translation>
    </message>
    <message>
        <source>Not currently connected...</source>
        <translation>Sem conexão no momento...</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>WPA pessoal</translation>
    </message>
    <message>
        <source>WPA Personal Mixed</source>
        <translation>WPA pessoal mista</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>WPA2 pessoal</translation>
    </message>
    <message>
        <source>Personal</source>
        <translation>Pessoal</translation>
    </message>
    <message>
        <source>Dynamic WEP</source>
        <translation>WEP dinâmica</translation>
    </message>
    <message>
        <source>WPA Enterprise</source>
        <translation>WPA corporativa</translation>
    </message>
    <message>
        <source>WPA Enterprise Mixed</source>
        <translation>WPA corporativa mista</translation>
    </message>
    <message>
        <source>WPA2 Enterprise</source>
        <translation>WPA2 corporativa</translation>
    </message>
    <message>
        <source>Enterprise</source>
        <translation>Corporativa</translation>
    </message>
    <message>
        <source>This account can be used.</source>
        <translation>Esta conta pode ser usada.</translation>
    </message>
    <message>
        <source>This account can be used. Set it up on one computer after the other: its server does not notice when two write at the same moment.</source>
        <translation>Esta conta pode ser usada. Configure-a em um computador depois do outro: seu servidor não percebe quando dois gravam no mesmo momento.</translation>
    </message>
    <message>
        <source>The server did not accept this name and password.</source>
        <translation>O servidor não aceitou este nome e esta senha.</translation>
    </message>
    <message>
        <source>This folder is not there at the moment.</source>
        <translation>Esta pasta não está presente no momento.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>O servidor não está acessível.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted.</source>
        <translation>O certificado do servidor não é confiável.</translation>
    </message>
    <message>
        <source>This folder cannot be written.</source>
        <translation>Não é possível gravar nesta pasta.</translation>
    </message>
    <message>
        <source>There is no space left in this folder.</source>
        <translation>Não há mais espaço nesta pasta.</translation>
    </message>
    <message>
        <source>There is no space left in this account.</source>
        <translation>Não há mais espaço nesta conta.</translation>
    </message>
    <message>
        <source>The account does not take files of this size.</source>
        <translation>A conta não aceita arquivos deste tamanho.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Isto não é uma pasta.</translation>
    </message>
    <message>
        <source>The server shows no files at this address. If it asks for a second factor, use an app password.</source>
        <translation>O servidor não mostra arquivos neste endereço. Se ele pedir um segundo fator, use uma senha de aplicativo.</translation>
    </message>
    <message>
        <source>The account did not work as expected. Try again later.</source>
        <translation>A conta não funcionou como esperado. Tente mais tarde.</translation>
    </message>
    <message>
        <source>Starts Quillon when you log in</source>
        <translation>Inicia o Quillon com a sessão</translation>
    </message>
    <message>
        <source>There is no keyring in this session to keep the password in.</source>
        <translation>Não há um chaveiro nesta sessão para guardar a senha.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked.</source>
        <translation>O chaveiro não foi desbloqueado.</translation>
    </message>
    <message>
        <source>The keyring did not answer.</source>
        <translation>O chaveiro não respondeu.</translation>
    </message>
    <message>
        <source>Quillon is not in the status bar</source>
        <translation>O Quillon não está na barra de status</translation>
    </message>
    <message>
        <source>This desktop shows no status items. Minimize the window to keep Quillon running: closing it ends Quillon.</source>
        <translation>Este ambiente gráfico não mostra ícones de status. Minimize a janela para manter o Quillon aberto: fechá-la encerra o Quillon.</translation>
    </message>
    <message>
        <source>Signed in to the folder %@</source>
        <translation>Conectado à pasta %@</translation>
    </message>
    <message>
        <source>Signed in as %@ at %@</source>
        <translation>Conectado como %@ em %@</translation>
    </message>
    <message>
        <source>Signed out. Rules, history and settings stay on this computer.</source>
        <translation>Desconectado. Regras, histórico e configurações ficam neste computador.</translation>
    </message>
    <message>
        <source>Looking for your files…</source>
        <translation>Procurando os arquivos…</translation>
    </message>
    <message>
        <source>Trying what the account can do…</source>
        <translation>Testando o que a conta permite…</translation>
    </message>
    <message>
        <source>Opening the account with the passphrase…</source>
        <translation>Abrindo a conta com a frase secreta…</translation>
    </message>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>Aguardando o chaveiro…</translation>
    </message>
    <message>
        <source>Write the whole path of the folder.</source>
        <translation>Escreva o caminho completo da pasta.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Digite o endereço do servidor.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Digite seu nome de usuário.</translation>
    </message>
    <message>
        <source>Enter an app password.</source>
        <translation>Digite uma senha de aplicativo.</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>As duas frases secretas não são iguais.</translation>
    </message>
    <message>
        <source>The record has been deleted.</source>
        <translation>A entrada foi excluída.</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportando…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln were saved. Save again for more.</source>
        <translation>
            <numerusform>%Ln item foi salvo. Salve de novo para mais.</numerusform>
            <numerusform>%Ln itens foram salvos. Salve de novo para mais.</numerusform>
        </translation>
    </message>
    <message>
        <source>The records could not be read.</source>
        <translation>Não foi possível ler as entradas.</translation>
    </message>
    <message>
        <source>The file could not be written. %@</source>
        <translation>Não foi possível gravar o arquivo. %@</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Pesquisando…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records selected</source>
        <translation>
            <numerusform>%Ln entrada selecionada</numerusform>
            <numerusform>%Ln entradas selecionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>%@: %@</source>
        <translation>%@: %@</translation>
    </message>
    <message>
        <source>Nothing contains “%@”. Upper and lower case matter.</source>
        <translation>Nada contém “%@”. Maiúsculas e minúsculas fazem diferença.</translation>
    </message>
    <message>
        <source>Every address change is listed here.</source>
        <translation>Cada alteração de endereço aparece aqui.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Excluindo…</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Salvando…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records deleted</source>
        <translation>
            <numerusform>Entrada excluída</numerusform>
            <numerusform>%Ln entradas excluídas</numerusform>
        </translation>
    </message>
    <message>
        <source>The records could not be deleted.</source>
        <translation>Não foi possível excluir as entradas.</translation>
    </message>
    <message numerus="yes">
        <source>Delete %Ln records?</source>
        <translation>
            <numerusform>Excluir %Ln entrada?</numerusform>
            <numerusform>Excluir %Ln entradas?</numerusform>
        </translation>
    </message>
    <message>
        <source>So many records at once cannot be brought back.</source>
        <translation>Tantas entradas de uma vez não podem ser recuperadas.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses</source>
        <translation>
            <numerusform>%Ln endereço</numerusform>
            <numerusform>%Ln endereços</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks</source>
        <translation>
            <numerusform>%Ln rede</numerusform>
            <numerusform>%Ln redes</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing in the history that is not saved.</source>
        <translation>Não há nada no histórico que não esteja salvo.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks added.</source>
        <translation>
            <numerusform>%Ln rede adicionada.</numerusform>
            <numerusform>%Ln redes adicionadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses added.</source>
        <translation>
            <numerusform>%Ln endereço adicionado.</numerusform>
            <numerusform>%Ln endereços adicionados.</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ and %@ added.</source>
        <translation>Adição: %@ e %@.</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>Não é possível ler o histórico.</translation>
    </message>
    <message>
        <source>%@ These are the newest %@; import again for more.</source>
        <translation>%@ Estes são os %@ itens mais recentes; importe de novo para mais.</translation>
    </message>
    <message>
        <source>Today %@</source>
        <translation>Hoje %@</translation>
    </message>
    <message>
        <source>Yesterday %@</source>
        <translation>Ontem %@</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>%@ %@</source>
        <translation>%@ %@</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Search All Fields</source>
        <translation>Pesquisar em todos os campos</translation>
    </message>
    <message>
        <source>Search Devices</source>
        <translation>Pesquisar dispositivos</translation>
    </message>
    <message>
        <source>Search Interfaces</source>
        <translation>Pesquisar interfaces</translation>
    </message>
    <message>
        <source>Search Addresses</source>
        <translation>Pesquisar endereços</translation>
    </message>
    <message>
        <source>Search Network Names</source>
        <translation>Pesquisar nomes de rede</translation>
    </message>
    <message>
        <source>Search BSSIDs</source>
        <translation>Pesquisar BSSIDs</translation>
    </message>
    <message>
        <source>Search Notes</source>
        <translation>Pesquisar notas</translation>
    </message>
    <message>
        <source>%@ was given %@.</source>
        <translation>%@ recebeu %@.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@.</source>
        <translation>%@ (%@) recebeu %@.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@ on %@.</source>
        <translation>%@ (%@) recebeu %@ em %@.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records</source>
        <translation>
            <numerusform>%Ln entrada</numerusform>
            <numerusform>%Ln entradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%@ of %Ln records</source>
        <translation>
            <numerusform>%@ de %Ln entrada</numerusform>
            <numerusform>%@ de %Ln entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>New Network Rule…</source>
        <translation>Nova regra de rede…</translation>
    </message>
    <message>
        <source>New Login Rule…</source>
        <translation>Nova regra de sessão…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fechar a janela</translation>
    </message>
    <message>
        <source>%@Hardware Address · %@</source>
        <translation>%@Endereço de hardware · %@</translation>
    </message>
    <message>
        <source>%@Current Address · %@</source>
        <translation>%@Endereço atual · %@</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>Aleatorizar</translation>
    </message>
    <message>
        <source>%@Resume Timer</source>
        <translation>%@Retomar o temporizador</translation>
    </message>
    <message>
        <source>%@Pause Timer</source>
        <translation>%@Pausar o temporizador</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Ainda não faz parte desta versão</translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation>Abrir o Quillon</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regras</translation>
    </message>
    <message>
        <source>Saved Networks and Addresses</source>
        <translation>Redes e endereços salvos</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>About Quillon</source>
        <translation>Sobre o Quillon</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>Sair do Quillon</translation>
    </message>
    <message>
        <source>Looking it up…</source>
        <translation>Consultando…</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sem resposta</translation>
    </message>
    <message>
        <source>Look-up is off</source>
        <translation>Consulta desligada</translation>
    </message>
    <message>
        <source>A public service is being asked under which address it sees you.</source>
        <translation>Um serviço público está sendo perguntado com que endereço ele vê este computador.</translation>
    </message>
    <message>
        <source>The public service did not answer. This is what it said before. The button asks again.</source>
        <translation>O serviço público não respondeu. Esta é a resposta anterior. O botão pergunta de novo.</translation>
    </message>
    <message>
        <source>The public service did not answer with an address. The button asks again.</source>
        <translation>O serviço público não respondeu com um endereço. O botão pergunta de novo.</translation>
    </message>
    <message>
        <source>It is not looked up by itself. The button asks a public service once.</source>
        <translation>Não é consultado automaticamente. O botão pergunta uma vez a um serviço público.</translation>
    </message>
    <message>
        <source>Remove Network from Favorites</source>
        <translation>Remover a rede dos favoritos</translation>
    </message>
    <message>
        <source>Add Network to Favorites</source>
        <translation>Adicionar a rede aos favoritos</translation>
    </message>
    <message>
        <source>Remove Address from Favorites</source>
        <translation>Remover o endereço dos favoritos</translation>
    </message>
    <message>
        <source>Add Address to Favorites</source>
        <translation>Adicionar o endereço aos favoritos</translation>
    </message>
    <message>
        <source>Network name</source>
        <translation>Nome da rede</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Segurança</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Sinal</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Ruído</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Taxa</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>MCS</source>
        <translation>MCS</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Wi-Fi is switched off.</source>
        <translation>O Wi-Fi está desligado.</translation>
    </message>
    <message>
        <source>Write it with colons: %@.</source>
        <translation>Escreva com dois-pontos: %@.</translation>
    </message>
    <message>
        <source>This is not a MAC address.</source>
        <translation>Isto não é um endereço MAC.</translation>
    </message>
    <message>
        <source>A MAC address has 12 hexadecimal digits.</source>
        <translation>Um endereço MAC tem 12 dígitos hexadecimais.</translation>
    </message>
    <message>
        <source>%@ is saved already.</source>
        <translation>%@ já está na lista.</translation>
    </message>
    <message>
        <source>A network needs its name, too.</source>
        <translation>Uma rede também precisa do nome.</translation>
    </message>
    <message>
        <source>Group address: most adapters refuse it.</source>
        <translation>Endereço de grupo: a maioria dos adaptadores o recusa.</translation>
    </message>
    <message>
        <source>Favorite removed</source>
        <translation>Favorito removido</translation>
    </message>
    <message>
        <source>Configure %@</source>
        <translation>Configurar %@</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Ativa</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativa</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>Não presente</translation>
    </message>
    <message>
        <source>Changing…</source>
        <translation>Alterando…</translation>
    </message>
    <message>
        <source>The address is now %@.</source>
        <translation>O endereço agora é %@.</translation>
    </message>
    <message>
        <source>The address is being changed</source>
        <translation>O endereço está sendo alterado</translation>
    </message>
    <message>
        <source>The interface is not there</source>
        <translation>A interface não está presente</translation>
    </message>
    <message>
        <source>The helper tool is not installed</source>
        <translation>A ferramenta auxiliar não está instalada</translation>
    </message>
    <message>
        <source>The interface has no factory address that is known</source>
        <translation>O endereço de fábrica da interface não é conhecido</translation>
    </message>
    <message>
        <source>The interface has its factory address</source>
        <translation>A interface tem seu endereço de fábrica</translation>
    </message>
    <message>
        <source>Gives the interface a random, locally administered address</source>
        <translation>Dá à interface um endereço aleatório, administrado localmente</translation>
    </message>
    <message>
        <source>Gives the interface its hardware address again</source>
        <translation>Devolve à interface seu endereço de hardware</translation>
    </message>
    <message>
        <source>Read the License</source>
        <translation>Ler a licença</translation>
    </message>
    <message>
        <source>The License on the Web</source>
        <translation>A licença na Web</translation>
    </message>
    <message>
        <source>Where Vendors Are Registered</source>
        <translation>Onde os fabricantes são registrados</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Versão %@</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or any later version. It comes without any warranty.</source>
        <translation>Software livre sob a Licença Pública Geral GNU, versão 3 ou qualquer versão posterior. Ele vem sem nenhuma garantia.</translation>
    </message>
    <message>
        <source>No program here opens %@</source>
        <translation>Nenhum programa aqui abre %@</translation>
    </message>
    <message>
        <source>Helper: installed, version %@</source>
        <translation>Ferramenta auxiliar: instalada, versão %@</translation>
    </message>
    <message>
        <source>Helper: not installed</source>
        <translation>Ferramenta auxiliar: não instalada</translation>
    </message>
    <message>
        <source>Helper: outdated, version %@</source>
        <translation>Ferramenta auxiliar: desatualizada, versão %@</translation>
    </message>
    <message>
        <source>No account yet: there is nowhere to sync with.</source>
        <translation>Ainda não há conta: não há com o que sincronizar.</translation>
    </message>
    <message>
        <source>Not while this desktop shows no status items.</source>
        <translation>Não enquanto este ambiente gráfico não mostrar ícones de status.</translation>
    </message>
    <message>
        <source>Only with the icon in the status bar.</source>
        <translation>Só com o ícone na barra de status.</translation>
    </message>
    <message>
        <source>no program that is known</source>
        <translation>nenhum programa conhecido</translation>
    </message>
    <message>
        <source>This desktop does not start programs at login by itself.</source>
        <translation>Este ambiente gráfico não inicia programas com a sessão por si só.</translation>
    </message>
    <message>
        <source>Whether this desktop starts programs at login cannot be told from here.</source>
        <translation>Não dá para saber daqui se este ambiente gráfico inicia programas com a sessão.</translation>
    </message>
    <message>
        <source>The program that starts Quillon at login is not installed.</source>
        <translation>O programa que inicia o Quillon com a sessão não está instalado.</translation>
    </message>
    <message>
        <source>The autostart entry is missing or cannot be written. Switch this off and on again to have it made anew.</source>
        <translation>A entrada de início automático falta ou não pode ser gravada. Desative e reative esta opção para criá-la de novo.</translation>
    </message>
    <message>
        <source>There still is an autostart entry. Switch this on and off again to have it taken out.</source>
        <translation>Ainda há uma entrada de início automático. Ative e desative esta opção para removê-la.</translation>
    </message>
    <message>
        <source>The desktop has Quillon switched off in its own list. Switch this off and on again to have it started.</source>
        <translation>O ambiente gráfico tem o Quillon desativado em sua própria lista. Desative e reative esta opção para que ele seja iniciado.</translation>
    </message>
    <message>
        <source>The autostart entry is for other desktops only. Switch this off and on again to have it act here.</source>
        <translation>A entrada de início automático é só para outros ambientes gráficos. Desative e reative esta opção para que ela aja aqui.</translation>
    </message>
    <message>
        <source>There is an autostart entry of your own: it is left as it is.</source>
        <translation>Há uma entrada de início automático própria: ela fica como está.</translation>
    </message>
    <message>
        <source>GeneralPreferences_en</source>
        <translation>GeneralPreferences_en</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>AdvancedPreferences_en</source>
        <translation>AdvancedPreferences_en</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>DisplayPreferences_en</source>
        <translation>DisplayPreferences_en</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Exibição</translation>
    </message>
    <message>
        <source>VendorPreferences_en</source>
        <translation>VendorPreferences_en</translation>
    </message>
    <message>
        <source>Vendor Data</source>
        <translation>Dados dos fabricantes</translation>
    </message>
    <message>
        <source>RulesPreferences_en</source>
        <translation>RulesPreferences_en</translation>
    </message>
    <message>
        <source>UpdatePreferences_en</source>
        <translation>UpdatePreferences_en</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>AboutPreferences_en</source>
        <translation>AboutPreferences_en</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Type a shortcut</source>
        <translation>Pressione um atalho</translation>
    </message>
    <message>
        <source>Escape keeps the shortcut of before, Backspace clears it.</source>
        <translation>Esc mantém o atalho anterior, Backspace o apaga.</translation>
    </message>
    <message>
        <source>This key cannot be part of a shortcut.</source>
        <translation>Esta tecla não pode fazer parte de um atalho.</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Gravar um atalho</translation>
    </message>
    <message>
        <source>The desktop has the last word: its settings show the keys that act.</source>
        <translation>O ambiente gráfico tem a última palavra: suas configurações mostram as teclas que valem.</translation>
    </message>
    <message>
        <source>“%@” uses this shortcut.</source>
        <translation>“%@” usa este atalho.</translation>
    </message>
    <message>
        <source>Any Network</source>
        <translation>Qualquer rede</translation>
    </message>
    <message>
        <source>An Unknown Network</source>
        <translation>Uma rede desconhecida</translation>
    </message>
    <message>
        <source>No interface here can be changed.</source>
        <translation>Nenhuma interface pode ser alterada aqui.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not here any more.</source>
        <translation>A regra foi feita para %@, que não está mais aqui.</translation>
    </message>
    <message>
        <source>Login rules do not act on Wi-Fi.</source>
        <translation>Regras de sessão não agem no Wi-Fi.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not saved any more.</source>
        <translation>A regra foi feita para %@, que não está mais entre os itens salvos.</translation>
    </message>
    <message>
        <source>%@ is not saved: press its heart first.</source>
        <translation>%@ não está salva: clique antes no coração dela.</translation>
    </message>
    <message>
        <source>“%@” is no vendor: choose one from the list.</source>
        <translation>“%@” não é um fabricante: escolha um da lista.</translation>
    </message>
    <message>
        <source>Repeated addresses have the vendor of the main window, not this one.</source>
        <translation>Endereços repetidos têm o fabricante da janela principal, não este.</translation>
    </message>
    <message>
        <source>Save or cancel this rule before you begin another one.</source>
        <translation>Salve ou cancele esta regra antes de começar outra.</translation>
    </message>
    <message>
        <source>The rule that was open is not there any more.</source>
        <translation>A regra que estava aberta não existe mais.</translation>
    </message>
    <message>
        <source>Another rule for this interface and network was switched off: only one can be on.</source>
        <translation>Outra regra para esta interface e esta rede foi desativada: só uma pode estar ativa.</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Diariamente</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanalmente</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensalmente</translation>
    </message>
    <message>
        <source>The internet cannot be reached now.</source>
        <translation>A internet não está acessível agora.</translation>
    </message>
    <message>
        <source>The place to look at is not an https address.</source>
        <translation>O lugar a consultar não é um endereço https.</translation>
    </message>
    <message>
        <source>The list of versions could not be fetched.</source>
        <translation>Não foi possível obter a lista de versões.</translation>
    </message>
    <message>
        <source>What came is not from the authors of Quillon and was not used.</source>
        <translation>O que foi recebido não é dos autores do Quillon e não foi usado.</translation>
    </message>
    <message>
        <source>The list of versions that came is out of date and was not used.</source>
        <translation>A lista de versões recebida está desatualizada e não foi usada.</translation>
    </message>
    <message>
        <source>Your system&apos;s software updates bring new versions.</source>
        <translation>As novas versões chegam com as atualizações do sistema.</translation>
    </message>
    <message>
        <source>It was built without a list of versions to ask for. Nothing is asked, whatever is chosen here.</source>
        <translation>Ela foi compilada sem uma lista de versões a consultar. Nada é consultado, seja qual for a escolha aqui.</translation>
    </message>
    <message>
        <source>Last checked: %@</source>
        <translation>Última verificação: %@</translation>
    </message>
    <message>
        <source>Not checked yet.</source>
        <translation>Ainda não verificado.</translation>
    </message>
    <message>
        <source>Quillon %@ is available</source>
        <translation>O Quillon %@ está disponível</translation>
    </message>
    <message>
        <source>This is version %@.</source>
        <translation>Esta é a versão %@.</translation>
    </message>
    <message>
        <source>Quillon %@ is the newest version.</source>
        <translation>O Quillon %@ é a versão mais recente.</translation>
    </message>
    <message>
        <source>No browser could be opened.</source>
        <translation>Não foi possível abrir um navegador.</translation>
    </message>
    <message>
        <source>The list of vendors is missing.</source>
        <translation>Falta a lista de fabricantes.</translation>
    </message>
    <message>
        <source>No vendor begins with “%@”.</source>
        <translation>Nenhum fabricante começa com “%@”.</translation>
    </message>
    <message numerus="yes">
        <source>%@ Vendor Identifiers</source>
        <translation>
            <numerusform>%@ identificador de fabricante</numerusform>
            <numerusform>%@ identificadores de fabricantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Update database</source>
        <translation>Atualizar o banco de dados</translation>
    </message>
    <message>
        <source>Getting download information...</source>
        <translation>Obtendo informações do download...</translation>
    </message>
    <message>
        <source>Updating Vendor Identifier count...</source>
        <translation>Atualizando o número de identificadores...</translation>
    </message>
    <message>
        <source>Cancel download...</source>
        <translation>Cancelar o download...</translation>
    </message>
    <message>
        <source>Downloading... %@MB</source>
        <translation>Baixando... %@&#xa0;MB</translation>
    </message>
    <message>
        <source>Downloading... %@% of %@MB</source>
        <translation>Baixando... %@% de %@&#xa0;MB</translation>
    </message>
    <message>
        <source>Download cancelled...</source>
        <translation>Download cancelado...</translation>
    </message>
    <message>
        <source>Processing data...</source>
        <translation>Processando os dados...</translation>
    </message>
    <message>
        <source>Parsing file failed...</source>
        <translation>Falha ao analisar o arquivo...</translation>
    </message>
    <message>
        <source>Last Updated: %@</source>
        <translation>Última atualização: %@</translation>
    </message>
    <message>
        <source>Restoring the previous database...</source>
        <translation>Restaurando o banco de dados anterior...</translation>
    </message>
    <message>
        <source>Restoring failed...</source>
        <translation>Falha ao restaurar...</translation>
    </message>
    <message>
        <source>Getting Vendor Identifier count...</source>
        <translation>Contando os identificadores...</translation>
    </message>
    <message>
        <source>This is the address in use. Type or drop another to change it.</source>
        <translation>Este é o endereço em uso. Para alterá-lo, digite ou solte outro aqui.</translation>
    </message>
    <message>
        <source>Press Return or Apply to use this address.</source>
        <translation>Enter ou “Aplicar” para usar este endereço.</translation>
    </message>
    <message>
        <source>Install the helper to change the address.</source>
        <translation>Instale a ferramenta auxiliar para alterar o endereço.</translation>
    </message>
    <message>
        <source>This interface is not there: select another.</source>
        <translation>Esta interface não está presente: escolha outra.</translation>
    </message>
    <message>
        <source>No interface is selected: there is none whose address can be changed</source>
        <translation>Não há interface selecionada cujo endereço possa ser alterado</translation>
    </message>
    <message>
        <source>The selected interface is not there</source>
        <translation>A interface selecionada não está presente</translation>
    </message>
    <message>
        <source>The field holds no other address to apply</source>
        <translation>O campo não contém outro endereço para aplicar</translation>
    </message>
    <message>
        <source>Changing an address needs administrator rights, which Quillon itself never has. A small helper makes the change and nothing else. Installing it asks for an administrator&apos;s password once; Preferences › Advanced removes it again.</source>
        <translation>Alterar um endereço exige direitos de administrador, que o próprio Quillon nunca tem. Uma pequena ferramenta auxiliar faz a alteração e nada mais. A instalação pede uma vez a senha de um administrador; em Preferências › Avançado ela pode ser removida.</translation>
    </message>
    <message>
        <source>(paused)</source>
        <translation>(pausado)</translation>
    </message>
    <message>
        <source>...changing MAC Address in %@</source>
        <translation>...novo endereço MAC em %@</translation>
    </message>
    <message>
        <source>Quillon Timer started</source>
        <translation>Temporizador do Quillon iniciado</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made first.</source>
        <translation>Em vez dela vale “%@”: foi criada antes.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: this network is not saved.</source>
        <translation>Em vez dela vale “%@”: esta rede não está salva.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made for this network.</source>
        <translation>Em vez dela vale “%@”: foi criada para esta rede.</translation>
    </message>
    <message>
        <source>Not in force: %@ is on no network.</source>
        <translation>Não vale: %@ não está em nenhuma rede.</translation>
    </message>
    <message>
        <source>Not in force: the network in use is saved.</source>
        <translation>Não vale: a rede em uso está salva.</translation>
    </message>
    <message>
        <source>Not in force: another network is in use.</source>
        <translation>Não vale: outra rede está em uso.</translation>
    </message>
    <message>
        <source>Not in force: it is switched off.</source>
        <translation>Não vale: está desativada.</translation>
    </message>
    <message>
        <source>Not in force: %@ is not here.</source>
        <translation>Não vale: %@ não está presente.</translation>
    </message>
    <message>
        <source>Not in force: login rules do not act on Wi-Fi.</source>
        <translation>Não vale: regras de sessão não agem no Wi-Fi.</translation>
    </message>
    <message>
        <source>In force: it acts when Quillon is started at login.</source>
        <translation>Vale: age quando o Quillon é iniciado com a sessão.</translation>
    </message>
    <message>
        <source>In force now.</source>
        <translation>Vale agora.</translation>
    </message>
    <message>
        <source>In force, but %@ is not connected.</source>
        <translation>Vale, mas %@ está sem conexão.</translation>
    </message>
    <message>
        <source>Not in force now.</source>
        <translation>Não vale agora.</translation>
    </message>
    <message>
        <source>On %@, leave %@ as it is.</source>
        <translation>Em %@, deixar %@ como está.</translation>
    </message>
    <message>
        <source>On any network, leave %@ as it is.</source>
        <translation>Em qualquer rede, deixar %@ como está.</translation>
    </message>
    <message>
        <source>On an unknown network, leave %@ as it is.</source>
        <translation>Em uma rede desconhecida, deixar %@ como está.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address once.</source>
        <translation>Em %@, dar uma vez a %@ um endereço aleatório.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address once.</source>
        <translation>Em qualquer rede, dar uma vez a %@ um endereço aleatório.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address once.</source>
        <translation>Em uma rede desconhecida, dar uma vez a %@ um endereço aleatório.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address.</source>
        <translation>Ao iniciar a sessão, dar a %@ um endereço aleatório.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address by %@ once.</source>
        <translation>Em %@, dar uma vez a %@ um endereço aleatório de %@.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address by %@ once.</source>
        <translation>Em qualquer rede, dar uma vez a %@ um endereço aleatório de %@.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address by %@ once.</source>
        <translation>Em uma rede desconhecida, dar uma vez a %@ um endereço aleatório de %@.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address by %@.</source>
        <translation>Ao iniciar a sessão, dar a %@ um endereço aleatório de %@.</translation>
    </message>
    <message numerus="yes">
        <source>On %@, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>Em %@, dar a %@ um novo endereço aleatório a cada minuto.</numerusform>
            <numerusform>Em %@, dar a %@ um novo endereço aleatório a cada %n minutos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On any network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>Em qualquer rede, dar a %@ um novo endereço aleatório a cada minuto.</numerusform>
            <numerusform>Em qualquer rede, dar a %@ um novo endereço aleatório a cada %n minutos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On an unknown network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>Em uma rede desconhecida, dar a %@ um novo endereço aleatório a cada minuto.</numerusform>
            <numerusform>Em uma rede desconhecida, dar a %@ um novo endereço aleatório a cada %n minutos.</numerusform>
        </translation>
    </message>
    <message>
        <source>On %@, give %@ the address %@.</source>
        <translation>Em %@, dar a %@ o endereço %@.</translation>
    </message>
    <message>
        <source>On any network, give %@ the address %@.</source>
        <translation>Em qualquer rede, dar a %@ o endereço %@.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ the address %@.</source>
        <translation>Em uma rede desconhecida, dar a %@ o endereço %@.</translation>
    </message>
    <message>
        <source>At login, give %@ the address %@.</source>
        <translation>Ao iniciar a sessão, dar a %@ o endereço %@.</translation>
    </message>
    <message>
        <source>has an Active rule</source>
        <translation>Há uma regra ativa</translation>
    </message>
    <message>
        <source>no rules are currently Active</source>
        <translation>Nenhuma regra está ativa no momento</translation>
    </message>
    <message>
        <source>no rules have been configured</source>
        <translation>Nenhuma regra foi configurada</translation>
    </message>
    <message>
        <source>Please sign in to iCloud</source>
        <translation>Entre no iCloud</translation>
    </message>
    <message>
        <source>Open System Settings, and login into your iCloud account to enable sync across all your devices.</source>
        <translation>Abra as Configurações do sistema e entre na sua conta do iCloud para sincronizar todos os seus dispositivos.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your iCloud account has changed. Do you want to synchronise with the new account?</source>
        <translation>Sua conta do iCloud mudou. Sincronizar com a nova conta?</translation>
    </message>
    <message>
        <source>You are asked this after you have logged in to a new iCloud account, and after the computer was restored from a backup.</source>
        <translation>Esta pergunta aparece após a entrada em uma nova conta do iCloud e após a restauração do computador a partir de um backup.</translation>
    </message>
    <message>
        <source>iCloud</source>
        <translation>iCloud</translation>
    </message>
    <message>
        <source>updates received</source>
        <translation>atualizações recebidas</translation>
    </message>
    <message>
        <source>Account…</source>
        <translation>Conta…</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Signs in to the account to sync with</source>
        <translation>Entra na conta com a qual sincronizar</translation>
    </message>
    <message>
        <source>Forgets the account and its passwords on this computer</source>
        <translation>Esquece a conta e suas senhas neste computador</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Sync Account</source>
        <translation>Conta de sincronização</translation>
    </message>
    <message>
        <source>Kind of account</source>
        <translation>Tipo de conta</translation>
    </message>
    <message>
        <source>Where the files of the account are</source>
        <translation>Onde estão os arquivos da conta</translation>
    </message>
    <message>
        <source>Nextcloud or WebDAV</source>
        <translation>Nextcloud ou WebDAV</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Encrypts what is stored. The same on all your computers; without it nothing can be read.</source>
        <translation>Criptografa o que é guardado. A mesma em todos os computadores; sem ela nada pode ser lido.</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Frase secreta</translation>
    </message>
    <message>
        <source>What the account holds is replaced by this computer&apos;s settings.</source>
        <translation>As configurações deste computador substituem o que a conta contém.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Its address, or that of your files there, as a browser shows it</source>
        <translation>Seu endereço, ou o dos arquivos que estão nele, como um navegador o mostra</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>The name that you have at this server</source>
        <translation>O nome neste servidor</translation>
    </message>
    <message>
        <source>App password</source>
        <translation>Senha de aplicativo</translation>
    </message>
    <message>
        <source>Made in the security settings of your account at the server</source>
        <translation>Criada nas configurações de segurança da conta no servidor</translation>
    </message>
    <message>
        <source>Kept in your keyring.</source>
        <translation>Guardada no chaveiro.</translation>
    </message>
    <message>
        <source>One that another program makes equal on your computers.</source>
        <translation>Uma que outro programa mantenha igual em todos os computadores.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Escolher…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Escolher uma pasta</translation>
    </message>
    <message>
        <source>Looks for it in your files</source>
        <translation>Procura-a entre os arquivos</translation>
    </message>
    <message>
        <source>Repeat passphrase</source>
        <translation>Repetir a frase secreta</translation>
    </message>
    <message>
        <source>The account is new: nobody can tell you later what you typed</source>
        <translation>A conta é nova: ninguém poderá dizer depois o que foi digitado</translation>
    </message>
    <message>
        <source>This is the SHA-256 fingerprint of the server&apos;s certificate. Accept it only if the server&apos;s administrator tells you the same one.</source>
        <translation>Esta é a impressão digital SHA-256 do certificado do servidor. Aceite-o somente se o administrador do servidor informar a mesma.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy Fingerprint</source>
        <translation>Copiar a impressão digital</translation>
    </message>
    <message>
        <source>To compare it in another window</source>
        <translation>Para compará-la em outra janela</translation>
    </message>
    <message>
        <source>Accept Certificate</source>
        <translation>Aceitar o certificado</translation>
    </message>
    <message>
        <source>Signs in, and trusts this certificate for this account from now on</source>
        <translation>Entra e passa a confiar neste certificado para esta conta</translation>
    </message>
    <message>
        <source>Gives up what is under way, or closes</source>
        <translation>Desiste do que está em andamento, ou fecha</translation>
    </message>
    <message>
        <source>Signing In…</source>
        <translation>Entrando…</translation>
    </message>
    <message>
        <source>Tries the account, and switches sync on</source>
        <translation>Testa a conta e ativa a sincronização</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Return saves the note, Escape gives it up.</source>
        <translation>Enter salva a nota, Esc a descarta.</translation>
    </message>
    <message>
        <source>F2 edits the note, Delete deletes.</source>
        <translation>F2 edita a nota, Delete exclui.</translation>
    </message>
    <message>
        <source>Save Addresses</source>
        <translation>Salvar endereços</translation>
    </message>
    <message>
        <source>Adds the addresses of the selected records to the saved ones.</source>
        <translation>Adiciona os endereços das entradas selecionadas aos salvos.</translation>
    </message>
    <message>
        <source>Save Networks</source>
        <translation>Salvar redes</translation>
    </message>
    <message>
        <source>Adds the networks of the selected records to the saved ones.</source>
        <translation>Adiciona as redes das entradas selecionadas às salvas.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Writes what is listed into a file that spreadsheets read.</source>
        <translation>Grava o que é mostrado em um arquivo que as planilhas leem.</translation>
    </message>
    <message>
        <source>Deletes the selected records.</source>
        <translation>Exclui as entradas selecionadas.</translation>
    </message>
    <message>
        <source>Upper and lower case matter.</source>
        <translation>Maiúsculas e minúsculas fazem diferença.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>What is done stays done.</source>
        <translation>O que está feito fica feito.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Edit Note</source>
        <translation>Editar a nota</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Reverse Order</source>
        <translation>Inverter a ordem</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>Exportar o histórico</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Limpar a pesquisa</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>File menu</source>
        <translation>Menu Arquivo</translation>
    </message>
    <message>
        <source>File menu (F10)</source>
        <translation>Menu Arquivo (F10)</translation>
    </message>
    <message>
        <source>External address</source>
        <translation>Endereço externo</translation>
    </message>
    <message>
        <source>Refresh external address</source>
        <translation>Atualizar o endereço externo</translation>
    </message>
    <message>
        <source>Asks a public service under which address it sees you</source>
        <translation>Pergunta a um serviço público com que endereço ele vê este computador</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nome (opcional)</translation>
    </message>
    <message>
        <source>Saved addresses</source>
        <translation>Endereços salvos</translation>
    </message>
    <message>
        <source>Add the current address with the heart.</source>
        <translation>O coração adiciona o endereço atual.</translation>
    </message>
    <message>
        <source>Edit Saved Items</source>
        <translation>Editar os itens salvos</translation>
    </message>
    <message>
        <source>Opens the window of saved networks and addresses</source>
        <translation>Abre a janela de redes e endereços salvos</translation>
    </message>
    <message>
        <source>Click to put one into the field, or drag it there.</source>
        <translation>Clique em um endereço para colocá-lo no campo, ou arraste-o até lá.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>Redes</translation>
    </message>
    <message>
        <source>Join a network and press its heart.</source>
        <translation>Conecte-se a uma rede e clique no coração dela.</translation>
    </message>
    <message>
        <source>Network…</source>
        <translation>Rede…</translation>
    </message>
    <message>
        <source>Save a network by hand</source>
        <translation>Salvar uma rede manualmente</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Endereços</translation>
    </message>
    <message>
        <source>Open the saved addresses and press the heart.</source>
        <translation>Abra os endereços salvos e clique no coração.</translation>
    </message>
    <message>
        <source>Address…</source>
        <translation>Endereço…</translation>
    </message>
    <message>
        <source>Save an address by hand</source>
        <translation>Salvar um endereço manualmente</translation>
    </message>
    <message>
        <source>Import from History</source>
        <translation>Importar do histórico</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importando…</translation>
    </message>
    <message>
        <source>Save the addresses and networks that the history knows</source>
        <translation>Salvar os endereços e as redes que o histórico conhece</translation>
    </message>
    <message>
        <source>Recognize by</source>
        <translation>Reconhecer por</translation>
    </message>
    <message>
        <source>Name %@</source>
        <translation>Nome %@</translation>
    </message>
    <message>
        <source>Access point %@</source>
        <translation>Ponto de acesso %@</translation>
    </message>
    <message>
        <source>Pause the countdown of %@</source>
        <translation>Pausar a contagem regressiva de %@</translation>
    </message>
    <message>
        <source>Resume the countdown of %@</source>
        <translation>Retomar a contagem regressiva de %@</translation>
    </message>
    <message>
        <source>Countdown paused</source>
        <translation>Contagem regressiva pausada</translation>
    </message>
    <message>
        <source>Countdown resumed</source>
        <translation>Contagem regressiva retomada</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterado</translation>
    </message>
    <message>
        <source>Hardware %@</source>
        <translation>Hardware %@</translation>
    </message>
    <message>
        <source>Vendor %@</source>
        <translation>Fabricante %@</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>Endereço atual</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <translation>Interfaces</translation>
    </message>
    <message>
        <source>Randomizing…</source>
        <translation>Aleatorizando…</translation>
    </message>
    <message>
        <source>Rules of %@</source>
        <translation>Regras de %@</translation>
    </message>
    <message>
        <source>Randomize %@</source>
        <translation>Aleatorizar %@</translation>
    </message>
    <message>
        <source>Randomizing %@</source>
        <translation>Aleatorizando %@</translation>
    </message>
    <message>
        <source>Restore the hardware address of %@</source>
        <translation>Restaurar o endereço de hardware de %@</translation>
    </message>
    <message>
        <source>Restoring the hardware address of %@</source>
        <translation>Restaurando o endereço de hardware de %@</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Recarre&amp;gar</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>Reads the interfaces and their addresses anew</source>
        <translation>Lê novamente as interfaces e seus endereços</translation>
    </message>
    <message>
        <source>There are interfaces that are not listed here yet.</source>
        <translation>Há interfaces que ainda não aparecem aqui.</translation>
    </message>
    <message>
        <source>The list shows the addresses as they were when it was opened.</source>
        <translation>A lista mostra os endereços de quando foi aberta.</translation>
    </message>
    <message>
        <source>&amp;Install Helper</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>The helper is not installed</source>
        <translation>Falta a ferramenta auxiliar</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Instalando…</translation>
    </message>
    <message>
        <source>Install helper</source>
        <translation>Instalar a ferramenta auxiliar</translation>
    </message>
    <message>
        <source>Asks for an administrator&apos;s password</source>
        <translation>Pede a senha de um administrador</translation>
    </message>
    <message>
        <source>By the Quillon authors</source>
        <translation>Dos autores do Quillon</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>Ask when another program replaces an address</source>
        <translation>Perguntar quando outro programa substituir um endereço</translation>
    </message>
    <message>
        <source>Who manages each interface</source>
        <translation>Quem gerencia cada interface</translation>
    </message>
    <message>
        <source>Uninstalling…</source>
        <translation>Desinstalando…</translation>
    </message>
    <message>
        <source>Repeat every %@ minutes by default</source>
        <translation>Repetir a cada %@ minutos por padrão</translation>
    </message>
    <message>
        <source>For rules whose own minutes are left empty</source>
        <translation>Para regras cujos minutos ficam vazios</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>Maiúsculas</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>Minúsculas</translation>
    </message>
    <message>
        <source>Letters of addresses</source>
        <translation>Letras dos endereços</translation>
    </message>
    <message>
        <source>Look up the external address</source>
        <translation>Consultar o endereço externo</translation>
    </message>
    <message>
        <source>Asks a public service whenever the network changes.</source>
        <translation>Pergunta a um serviço público sempre que a rede muda.</translation>
    </message>
    <message>
        <source>Start Quillon at login</source>
        <translation>Iniciar o Quillon com a sessão</translation>
    </message>
    <message>
        <source>Do not open the window at login</source>
        <translation>Não abrir a janela ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Show in the status bar</source>
        <translation>Mostrar na barra de status</translation>
    </message>
    <message>
        <source>Hide from the task bar</source>
        <translation>Ocultar da barra de tarefas</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Mostrar notificações</translation>
    </message>
    <message>
        <source>Shortcuts that work in every window</source>
        <translation>Atalhos que valem em todas as janelas</translation>
    </message>
    <message>
        <source>Sync settings, rules and history</source>
        <translation>Sincronizar configurações, regras e histórico</translation>
    </message>
    <message>
        <source>Shortcut for “%@”</source>
        <translation>Atalho para “%@”</translation>
    </message>
    <message>
        <source>Clear the shortcut for “%@”</source>
        <translation>Apagar o atalho para “%@”</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Countdown ended</source>
        <translation>Contagem regressiva terminada</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules deleted</source>
        <translation>
            <numerusform>Regra excluída</numerusform>
            <numerusform>%Ln regras excluídas</numerusform>
        </translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetição</translation>
    </message>
    <message>
        <source>Save Rule</source>
        <translation>Salvar a regra</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Não fazer nada</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>Alterar o endereço</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Uma vez</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>A cada</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutos</translation>
    </message>
    <message>
        <source>New Random Address</source>
        <translation>Novo endereço aleatório</translation>
    </message>
    <message>
        <source>Makes a random address, saves it, and uses it whenever the rule acts</source>
        <translation>Cria um endereço aleatório, salva-o e o usa sempre que a regra age</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>New rules start switched off.</source>
        <translation>Novas regras começam desativadas.</translation>
    </message>
    <message>
        <source>Press Return to rename the rule</source>
        <translation>Enter para renomear a regra</translation>
    </message>
    <message>
        <source>Active rule</source>
        <translation>Regra ativa</translation>
    </message>
    <message>
        <source>No active rules</source>
        <translation>Nenhuma regra ativa</translation>
    </message>
    <message>
        <source>No rules</source>
        <translation>Nenhuma regra</translation>
    </message>
    <message>
        <source>No rule for this interface.</source>
        <translation>Nenhuma regra para esta interface.</translation>
    </message>
    <message>
        <source>Edit Rules</source>
        <translation>Editar as regras</translation>
    </message>
    <message>
        <source>Opens the rule editor</source>
        <translation>Abre o editor de regras</translation>
    </message>
    <message>
        <source>Rules change the address when you join a network.</source>
        <translation>As regras alteram o endereço na conexão a uma rede.</translation>
    </message>
    <message>
        <source>New Network Rule</source>
        <translation>Nova regra de rede</translation>
    </message>
    <message>
        <source>Network Rule</source>
        <translation>Regra de rede</translation>
    </message>
    <message>
        <source>New network rule</source>
        <translation>Nova regra de rede</translation>
    </message>
    <message>
        <source>Login Rule</source>
        <translation>Regra de sessão</translation>
    </message>
    <message>
        <source>New login rule</source>
        <translation>Nova regra de sessão</translation>
    </message>
    <message>
        <source>Edit the rule (Return)</source>
        <translation>Editar a regra (Enter)</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Duplicate the rules (Ctrl+D)</source>
        <translation>Duplicar as regras (Ctrl+D)</translation>
    </message>
    <message>
        <source>Delete the rules (Delete)</source>
        <translation>Excluir as regras (Delete)</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Início da sessão</translation>
    </message>
    <message>
        <source>No name</source>
        <translation>Sem nome</translation>
    </message>
    <message>
        <source>Saved Items</source>
        <translation>Itens salvos</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>Abrir a página</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>Show it in the software center, or in the browser</source>
        <translation>Mostrar na central de programas ou no navegador</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Procurar agora</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Procurar novas versões</translation>
    </message>
    <message>
        <source>Open a new version&apos;s page</source>
        <translation>Abrir a página de uma nova versão</translation>
    </message>
    <message>
        <source>This copy of Quillon does not look for new versions.</source>
        <translation>Esta cópia do Quillon não procura novas versões.</translation>
    </message>
    <message>
        <source>How often</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>At once, in the software center or the browser. Quillon itself downloads and installs nothing.</source>
        <translation>Na hora, na central de programas ou no navegador. O próprio Quillon não baixa nem instala nada.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Procurando…</translation>
    </message>
    <message>
        <source>Only while Quillon checks by itself</source>
        <translation>Só enquanto o próprio Quillon procura</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorito</translation>
    </message>
    <message>
        <source>Pause or Resume Timer</source>
        <translation>Pausar ou retomar o temporizador</translation>
    </message>
    <message>
        <source>Open the preferences where the list of vendors is downloaded</source>
        <translation>Abrir as preferências em que a lista de fabricantes é baixada</translation>
    </message>
    <message>
        <source>&amp;Vendor</source>
        <translation>&amp;Fabricante</translation>
    </message>
    <message>
        <source>Vendor of random addresses</source>
        <translation>Fabricante dos endereços aleatórios</translation>
    </message>
    <message>
        <source>Type the beginning of a name, then choose from the list</source>
        <translation>Digite o começo de um nome e escolha na lista</translation>
    </message>
    <message>
        <source>Hide vendors</source>
        <translation>Ocultar os fabricantes</translation>
    </message>
    <message>
        <source>Show vendors</source>
        <translation>Mostrar os fabricantes</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Bring back the vendors from before the last update</source>
        <translation>Recuperar os fabricantes de antes da última atualização</translation>
    </message>
    <message>
        <source>The vendors from before the last update are being brought back</source>
        <translation>Os fabricantes de antes da última atualização estão sendo recuperados</translation>
    </message>
    <message>
        <source>Not while the database is being updated</source>
        <translation>Não durante a atualização do banco de dados</translation>
    </message>
    <message>
        <source>There are no vendors from before an update</source>
        <translation>Não há fabricantes de antes de uma atualização</translation>
    </message>
    <message>
        <source>Not while the vendors from before are being brought back</source>
        <translation>Não durante a recuperação dos fabricantes anteriores</translation>
    </message>
    <message>
        <source>Restore previous</source>
        <translation>Restaurar os anteriores</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Andamento do download</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Fabricantes</translation>
    </message>
    <message>
        <source>Signal and noise are not known</source>
        <translation>Sinal e ruído não são conhecidos</translation>
    </message>
    <message>
        <source>Signal %@</source>
        <translation>Sinal %@</translation>
    </message>
    <message>
        <source>Noise %@</source>
        <translation>Ruído %@</translation>
    </message>
    <message>
        <source>Signal %@, noise %@</source>
        <translation>Sinal %@, ruído %@</translation>
    </message>
    <message>
        <source>Signal and noise over the last five minutes</source>
        <translation>Sinal e ruído dos últimos cinco minutos</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutos</translation>
    </message>
    <message>
        <source>What to search</source>
        <translation>Onde pesquisar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Randomize</source>
        <translation>Aleato&amp;rizar</translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation>En&amp;dereço</translation>
    </message>
    <message>
        <source>The address in use is not the hardware address</source>
        <translation>O endereço em uso não é o endereço de hardware</translation>
    </message>
    <message>
        <source>Apply address</source>
        <translation>Aplicar o endereço</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Aplicando…</translation>
    </message>
    <message>
        <source>Changed: the address in use is not the hardware address</source>
        <translation>Alterado: o endereço em uso não é o endereço de hardware</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits. Return applies the address.</source>
        <translation>Doze dígitos hexadecimais. Enter aplica o endereço.</translation>
    </message>
    <message>
        <source>Gives the interface the address in the field</source>
        <translation>Dá à interface o endereço do campo</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits, with or without colons. Return applies the address.</source>
        <translation>Doze dígitos hexadecimais, com ou sem dois-pontos. Enter aplica o endereço.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>The address the device was made with.</source>
        <translation>O endereço com que o dispositivo foi fabricado.</translation>
    </message>
    <message>
        <source>Restore hardware address</source>
        <translation>Restaurar o endereço de hardware</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>Restaurando…</translation>
    </message>
    <message>
        <source>Gives the interface the address back that it was made with</source>
        <translation>Devolve à interface o endereço com que ela foi fabricada</translation>
    </message>
    <message>
        <source>Hardware address</source>
        <translation>Endereço de hardware</translation>
    </message>
    <message>
        <source>Link active</source>
        <translation>Enlace ativo</translation>
    </message>
    <message>
        <source>Link inactive</source>
        <translation>Enlace inativo</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>Endereço IPv4</translation>
    </message>
    <message>
        <source>The network interface whose address is shown and changed</source>
        <translation>A interface de rede cujo endereço é mostrado e alterado</translation>
    </message>
    <message>
        <source>What is the helper?</source>
        <translation>O que é a ferramenta auxiliar?</translation>
    </message>
    <message>
        <source>About the helper</source>
        <translation>Sobre a ferramenta auxiliar</translation>
    </message>
    <message>
        <source>Helper hint</source>
        <translation>Aviso sobre a ferramenta auxiliar</translation>
    </message>
    <message>
        <source>What is new is in Preferences › Updates.</source>
        <translation>As novidades estão em Preferências › Atualizações.</translation>
    </message>
    <message>
        <source>Only a random address has a vendor</source>
        <translation>Só um endereço aleatório tem fabricante</translation>
    </message>
    <message>
        <source>No interface is selected: there is none to choose a vendor for</source>
        <translation>Não há interface selecionada para a qual escolher um fabricante</translation>
    </message>
    <message numerus="yes">
        <source>%@ (added %@ new Identifiers)</source>
        <translation>
            <numerusform>%@ (%@ novo identificador)</numerusform>
            <numerusform>%@ (%@ novos identificadores)</numerusform>
        </translation>
    </message>
    <message>
        <source>Getting Vendor infomation...</source>
        <translation>Procurando o fabricante...</translation>
    </message>
    <message>
        <source>No Vendor Information available...</source>
        <translation>Sem informações do fabricante...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records exported</source>
        <translation>
            <numerusform>%Ln entrada exportada</numerusform>
            <numerusform>%Ln entradas exportadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Sign in to the account first.</source>
        <translation>Entre primeiro na conta.</translation>
    </message>
    <message>
        <source>Enter the current passphrase.</source>
        <translation>Digite a frase secreta atual.</translation>
    </message>
    <message>
        <source>Enter a new passphrase.</source>
        <translation>Digite uma nova frase secreta.</translation>
    </message>
    <message>
        <source>The new passphrase is the current one.</source>
        <translation>A nova frase secreta é igual à atual.</translation>
    </message>
    <message>
        <source>Another computer has just changed the key file. Try again with the passphrase that holds now.</source>
        <translation>Outro computador acabou de alterar o arquivo de chave. Tente novamente com a frase secreta que vale agora.</translation>
    </message>
    <message>
        <source>The connection was lost. Either the new passphrase or the current one opens the account now.</source>
        <translation>A conexão foi perdida. A conta agora abre com a nova frase secreta ou com a anterior.</translation>
    </message>
    <message>
        <source>Another computer has changed the passphrase at the same time. That one holds now.</source>
        <translation>Outro computador alterou a frase secreta ao mesmo tempo. Agora vale a dele.</translation>
    </message>
    <message>
        <source>This is not the current passphrase.</source>
        <translation>Esta não é a frase secreta atual.</translation>
    </message>
    <message>
        <source>Another key is in the account: somebody has made it anew, or changed it. Nothing is synced until you sign in again.</source>
        <translation>Há outra chave na conta: alguém a criou de novo ou a alterou. Nada é sincronizado até que você entre novamente.</translation>
    </message>
    <message>
        <source>Reading the account&apos;s key file…</source>
        <translation>Lendo o arquivo de chave da conta…</translation>
    </message>
    <message>
        <source>Writing the account&apos;s key file…</source>
        <translation>Gravando o arquivo de chave da conta…</translation>
    </message>
    <message>
        <source>The passphrase was changed. Your other computers stay signed in.</source>
        <translation>A frase secreta foi alterada. Os outros computadores continuam conectados.</translation>
    </message>
    <message>
        <source>What the network still sees</source>
        <translation>O que a rede ainda vê</translation>
    </message>
    <message>
        <source>What the network of %@ still sees</source>
        <translation>O que a rede de %@ ainda vê</translation>
    </message>
    <message>
        <source>No interface is selected.</source>
        <translation>Nenhuma interface está selecionada.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Consultando…</translation>
    </message>
    <message>
        <source>Nothing but the address is known to tell who this is.</source>
        <translation>Além do endereço, não se conhece nada que revele este computador.</translation>
    </message>
    <message>
        <source>Made from the current address</source>
        <translation>Formado com o endereço atual</translation>
    </message>
    <message>
        <source>Made from the hardware address</source>
        <translation>Formado com o endereço de hardware</translation>
    </message>
    <message>
        <source>Made from another address</source>
        <translation>Formado com outro endereço</translation>
    </message>
    <message>
        <source>Made for this network</source>
        <translation>Criado para esta rede</translation>
    </message>
    <message>
        <source>Made for this computer</source>
        <translation>Criado para este computador</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Changes with the address.</source>
        <translation>Muda com o endereço.</translation>
    </message>
    <message>
        <source>Changes by itself after a time.</source>
        <translation>Muda sozinho depois de algum tempo.</translation>
    </message>
    <message>
        <source>Stays the same on this network.</source>
        <translation>Continua igual nesta rede.</translation>
    </message>
    <message>
        <source>Stays the same on every network.</source>
        <translation>Continua igual em todas as redes.</translation>
    </message>
    <message>
        <source>Gives the hardware address away.</source>
        <translation>Revela o endereço de hardware.</translation>
    </message>
    <message>
        <source>Gives an earlier address, or that of another interface, away.</source>
        <translation>Revela um endereço anterior ou o de outra interface.</translation>
    </message>
    <message>
        <source>Who sets it does not tell.</source>
        <translation>O programa que o define não dá informações.</translation>
    </message>
    <message>
        <source>Whether it changes with the address is not known.</source>
        <translation>Não se sabe se muda com o endereço.</translation>
    </message>
    <message>
        <source>Kept across the change, since %@.</source>
        <translation>Mantido após a alteração, desde %@.</translation>
    </message>
    <message>
        <source>To show less: %@</source>
        <translation>Para mostrar menos: %@</translation>
    </message>
    <message>
        <source>To show less, in %@: %@</source>
        <translation>Para mostrar menos, em %@: %@</translation>
    </message>
    <message>
        <source>Name sent with DHCP</source>
        <translation>Nome enviado por DHCP</translation>
    </message>
    <message>
        <source>DHCP client identifier</source>
        <translation>Identificador de cliente DHCP</translation>
    </message>
    <message>
        <source>DHCPv6 identifier (DUID)</source>
        <translation>Identificador DHCPv6 (DUID)</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>Endereço IPv6</translation>
    </message>
    <message>
        <source>More IPv6 addresses</source>
        <translation>Mais endereços IPv6</translation>
    </message>
    <message>
        <source>Name told by mDNS</source>
        <translation>Nome anunciado por mDNS</translation>
    </message>
    <message>
        <source>Name told by LLMNR</source>
        <translation>Nome anunciado por LLMNR</translation>
    </message>
    <message>
        <source>Login name (802.1X)</source>
        <translation>Nome de usuário (802.1X)</translation>
    </message>
    <message>
        <source>Change Passphrase…</source>
        <translation>Alterar frase secreta…</translation>
    </message>
    <message>
        <source>Gives the account another passphrase, for all computers</source>
        <translation>Dá à conta outra frase secreta, para todos os computadores</translation>
    </message>
    <message>
        <source>Change Passphrase</source>
        <translation>Alterar frase secreta</translation>
    </message>
    <message>
        <source>From then on the account is opened by the new passphrase</source>
        <translation>Depois disso, a nova frase secreta abre a conta</translation>
    </message>
    <message>
        <source>Current passphrase</source>
        <translation>Frase secreta atual</translation>
    </message>
    <message>
        <source>The one with which you signed in</source>
        <translation>A que você usou para entrar</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>Nova frase secreta</translation>
    </message>
    <message>
        <source>At least eight characters. Nobody can tell you later what you typed.</source>
        <translation>Pelo menos oito caracteres. Ninguém poderá dizer depois o que foi digitado.</translation>
    </message>
    <message>
        <source>Repeat new passphrase</source>
        <translation>Repetir a nova frase secreta</translation>
    </message>
    <message>
        <source>The same once more</source>
        <translation>A mesma mais uma vez</translation>
    </message>
    <message>
        <source>Your other computers stay signed in. Copies of the account that somebody has made before still open with the current passphrase.</source>
        <translation>Os outros computadores continuam conectados. Cópias da conta feitas antes ainda abrem com a frase secreta atual.</translation>
    </message>
</context>
</TS>
