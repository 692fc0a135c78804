<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Quillon</name>
    <message>
        <source>Unknown...</source>
        <translation>Inconnu...</translation>
    </message>
    <message>
        <source>Another program is using the file.</source>
        <translation>Un autre programme utilise le fichier.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>Il n’y a plus de place sur le disque.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>Impossible de lire le disque ou d’y écrire.</translation>
    </message>
    <message>
        <source>Rules and history could not be saved. They are kept while Quillon runs. %@</source>
        <translation>Impossible d’enregistrer les règles et l’historique. Ils sont conservés tant que Quillon est ouvert. %@</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>The records were written by a newer version of Quillon</source>
        <translation>Les données ont été écrites par une version plus récente de Quillon</translation>
    </message>
    <message>
        <source>They are left untouched; please install that version again to use them: %@</source>
        <translation>Elles restent intactes&#x202f;; pour les utiliser, veuillez réinstaller cette version&#xa0;: %@</translation>
    </message>
    <message>
        <source>The records cannot be opened</source>
        <translation>Impossible d’ouvrir les données</translation>
    </message>
    <message>
        <source>%@

Rules and history are in this file, which is left as it is: %@</source>
        <translation>%@

Les règles et l’historique sont dans ce fichier, qui reste tel quel&#xa0;: %@</translation>
    </message>
    <message>
        <source>Settings are damaged</source>
        <translation>Les réglages sont endommagés</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file was left as it was: %@</source>
        <translation>Quillon continue avec les réglages connus ou ses valeurs par défaut. Le fichier endommagé a été laissé tel quel&#xa0;: %@</translation>
    </message>
    <message>
        <source>Settings were damaged</source>
        <translation>Les réglages étaient endommagés</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file is kept: %@</source>
        <translation>Quillon continue avec les réglages connus ou ses valeurs par défaut. Le fichier endommagé est conservé&#xa0;: %@</translation>
    </message>
    <message>
        <source>Settings cannot be read</source>
        <translation>Impossible de lire les réglages</translation>
    </message>
    <message>
        <source>Quillon uses its defaults and leaves the file alone: %@</source>
        <translation>Quillon utilise ses valeurs par défaut et ne touche pas au fichier&#xa0;: %@</translation>
    </message>
    <message>
        <source>Settings cannot be saved</source>
        <translation>Impossible d’enregistrer les réglages</translation>
    </message>
    <message>
        <source>Changes last until Quillon quits. Please check the permissions of %@</source>
        <translation>Les modifications durent jusqu’à la fermeture de Quillon. Veuillez vérifier les droits d’accès de %@</translation>
    </message>
    <message>
        <source>There is no room left on the disk. Changes last until Quillon quits: %@</source>
        <translation>Il n’y a plus de place sur le disque. Les modifications durent jusqu’à la fermeture de Quillon&#xa0;: %@</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Impossible d’enregistrer les modifications en quittant. Quitter quand même&#x202f;?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Quitter maintenant fera perdre toutes les modifications faites depuis le dernier enregistrement réussi</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The account holds changes by a newer version of Quillon. Update it here to get them.</source>
        <translation>Le compte contient des modifications d’une version plus récente de Quillon. Mettre à jour ici pour les recevoir.</translation>
    </message>
    <message>
        <source>A file in the account is damaged, or somebody has changed it. It is left alone.</source>
        <translation>Un fichier du compte est endommagé, ou quelqu’un l’a modifié. Il est laissé tel quel.</translation>
    </message>
    <message>
        <source>The password of the account is not in the keyring. Sign in again.</source>
        <translation>Le mot de passe du compte n’est pas dans le trousseau. Se connecter à nouveau.</translation>
    </message>
    <message>
        <source>What is to be synced could not be stored on this computer.</source>
        <translation>Ce qui est à synchroniser n’a pas pu être enregistré sur cet ordinateur.</translation>
    </message>
    <message>
        <source>This account is new. Repeat the passphrase.</source>
        <translation>Ce compte est nouveau. Répéter la phrase secrète.</translation>
    </message>
    <message>
        <source>The two passphrases differ.</source>
        <translation>Les deux phrases secrètes diffèrent.</translation>
    </message>
    <message>
        <source>The passphrase is too short: it needs at least eight characters.</source>
        <translation>La phrase secrète est trop courte&#xa0;: il faut au moins huit caractères.</translation>
    </message>
    <message>
        <source>The account has another passphrase.</source>
        <translation>Le compte a une autre phrase secrète.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is damaged. Put back an older copy of it.</source>
        <translation>Le fichier de clé du compte est endommagé. En remettre une copie plus ancienne.</translation>
    </message>
    <message>
        <source>The account was made by a newer version of Quillon.</source>
        <translation>Le compte a été créé par une version plus récente de Quillon.</translation>
    </message>
    <message>
        <source>The account&apos;s key file is missing. A computer that is signed in puts it back when it syncs next.</source>
        <translation>Le fichier de clé du compte manque. Un ordinateur connecté le remettra à sa prochaine synchronisation.</translation>
    </message>
    <message>
        <source>This computer has not enough free memory for that now.</source>
        <translation>Cet ordinateur n’a pas assez de mémoire libre pour cela en ce moment.</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>Choisir un dossier.</translation>
    </message>
    <message>
        <source>Enter the server&apos;s address.</source>
        <translation>Saisir l’adresse du serveur.</translation>
    </message>
    <message>
        <source>Enter a user name and a password.</source>
        <translation>Saisir un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>Enter a passphrase.</source>
        <translation>Saisir une phrase secrète.</translation>
    </message>
    <message>
        <source>%@ did not let go of it</source>
        <translation>%@ n’a pas libéré l’interface</translation>
    </message>
    <message>
        <source>Only the session in front of this computer may change it</source>
        <translation>Seule une session ouverte directement sur cet ordinateur peut la modifier</translation>
    </message>
    <message>
        <source>Please make sure you have installed the HelperTool</source>
        <translation>Veuillez vérifier que l’outil auxiliaire est installé</translation>
    </message>
    <message>
        <source>%@ gives this network an Address of its own. Look for it in the network&apos;s settings</source>
        <translation>%@ donne à ce réseau une adresse propre. Elle se trouve dans les paramètres du réseau</translation>
    </message>
    <message>
        <source>Please make sure your Device is enabled</source>
        <translation>Veuillez vérifier que le périphérique est activé</translation>
    </message>
    <message>
        <source>%@ Address Changed</source>
        <translation>%@&#xa0;: adresse modifiée</translation>
    </message>
    <message>
        <source>Your new MAC Address is: %@</source>
        <translation>La nouvelle adresse MAC est&#xa0;: %@</translation>
    </message>
    <message>
        <source>Please connect it again with the program that connects it</source>
        <translation>Veuillez rétablir la connexion avec le programme qui la gère</translation>
    </message>
    <message>
        <source>Please connect it again with %@</source>
        <translation>Veuillez rétablir la connexion avec %@</translation>
    </message>
    <message>
        <source>%@ is not connected again</source>
        <translation>%@ n’est pas reconnecté</translation>
    </message>
    <message>
        <source>%@ keeps the IP Address of before</source>
        <translation>%@ garde l’ancienne adresse IP</translation>
    </message>
    <message>
        <source>%@ keeps an IPv6 Address made from the old one</source>
        <translation>%@ garde une adresse IPv6 formée à partir de l’ancienne</translation>
    </message>
    <message>
        <source>%@ Address may be replaced</source>
        <translation>%@&#xa0;: l’adresse risque d’être remplacée</translation>
    </message>
    <message>
        <source>This session may not control %@. The new Address holds until the interface connects the next time</source>
        <translation>Cette session ne peut pas piloter %@. La nouvelle adresse vaut jusqu’à la prochaine connexion de l’interface</translation>
    </message>
    <message>
        <source>The new Address and the old Address are identical</source>
        <translation>La nouvelle adresse et l’ancienne sont identiques</translation>
    </message>
    <message>
        <source>%@ Address was replaced</source>
        <translation>%@&#xa0;: adresse remplacée</translation>
    </message>
    <message>
        <source>Another program keeps setting an Address of its own. Your rule acts again when you join a network</source>
        <translation>Un autre programme définit sans cesse sa propre adresse. La règle agira de nouveau à la prochaine connexion à un réseau</translation>
    </message>
    <message>
        <source>%@ Address was not Changed</source>
        <translation>%@&#xa0;: adresse non modifiée</translation>
    </message>
    <message>
        <source>The interface does not say which address it has now.</source>
        <translation>L’interface n’indique pas son adresse actuelle.</translation>
    </message>
    <message>
        <source>Changed: this is the address in use now.</source>
        <translation>Modifié&#xa0;: c’est maintenant l’adresse utilisée.</translation>
    </message>
    <message>
        <source>Not changed: %@.</source>
        <translation>Non modifiée&#xa0;: %@.</translation>
    </message>
    <message>
        <source>Not connected again: look at the address when it is.</source>
        <translation>Pas encore reconnecté&#xa0;: vérifier l’adresse ensuite.</translation>
    </message>
    <message>
        <source>Changed, but to another address than you asked for.</source>
        <translation>Modifiée, mais pas en l’adresse demandée.</translation>
    </message>
    <message>
        <source>The address was not changed.</source>
        <translation>L’adresse n’a pas été modifiée.</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>%@ now has %@ in place of %@.</source>
        <translation>%@ a maintenant %@ au lieu de %@.</translation>
    </message>
    <message>
        <source>%@ owns this interface.</source>
        <translation>%@ gère cette interface.</translation>
    </message>
    <message>
        <source>%@ shows another Address</source>
        <translation>%@ présente une autre adresse</translation>
    </message>
    <message>
        <source>Apply again</source>
        <translation>Appliquer à nouveau</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Accepter</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>Show window</source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message>
        <source>Randomize address</source>
        <translation>Rendre l’adresse aléatoire</translation>
    </message>
    <message>
        <source>Shortcut for “%@” not set</source>
        <translation>Raccourci pour «&#xa0;%@&#xa0;» non défini</translation>
    </message>
    <message>
        <source>A shortcut needs Ctrl, Alt or Meta and one more key.</source>
        <translation>Un raccourci demande Ctrl, Alt ou Meta et une autre touche.</translation>
    </message>
    <message>
        <source>Another program uses this shortcut.</source>
        <translation>Un autre programme utilise ce raccourci.</translation>
    </message>
    <message>
        <source>The desktop refused this shortcut.</source>
        <translation>Le bureau a refusé ce raccourci.</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>Ce clavier n’a pas cette touche.</translation>
    </message>
    <message>
        <source>This desktop does not let programs set global shortcuts.</source>
        <translation>Ce bureau ne permet pas aux programmes de définir des raccourcis globaux.</translation>
    </message>
    <message>
        <source>Quillon requires Location Services to determine your current network details</source>
        <translation>Quillon a besoin du service de localisation pour connaître les détails du réseau actuel</translation>
    </message>
    <message>
        <source>You need to give Quillon access in System Settings &gt; Privacy &amp; Security &gt; Privacy &gt; Location Services</source>
        <translation>L’accès se donne à Quillon dans Paramètres système &gt; Confidentialité et sécurité &gt; Confidentialité &gt; Service de localisation</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Random Address</source>
        <translation>Adresse aléatoire</translation>
    </message>
    <message>
        <source>Not currently connected...</source>
        <translation>Actuellement non connecté...</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>WPA personnel</translation>
    </message>
    <message>
        <source>WPA Personal Mixed</source>
        <translation>WPA personnel mixte</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>WPA2 personnel</translation>
    </message>
    <message>
        <source>Personal</source>
        <translation>Personnel</translation>
    </message>
    <message>
        <source>Dynamic WEP</source>
        <translation>WEP dynamique</translation>
    </message>
    <message>
        <source>WPA Enterprise</source>
        <translation>WPA entreprise</translation>
    </message>
    <message>
        <source>WPA Enterprise Mixed</source>
        <translation>WPA entreprise mixte</translation>
    </message>
    <message>
        <source>WPA2 Enterprise</source>
        <translation>WPA2 entreprise</translation>
    </message>
    <message>
        <source>Enterprise</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>This account can be used.</source>
        <translation>Ce compte peut être utilisé.</translation>
    </message>
    <message>
        <source>This account can be used. Set it up on one computer after the other: its server does not notice when two write at the same moment.</source>
        <translation>Ce compte peut être utilisé. Le configurer sur un ordinateur après l’autre&#xa0;: son serveur ne remarque pas quand deux écrivent au même moment.</translation>
    </message>
    <message>
        <source>The server did not accept this name and password.</source>
        <translation>Le serveur n’a pas accepté ce nom et ce mot de passe.</translation>
    </message>
    <message>
        <source>This folder is not there at the moment.</source>
        <translation>Ce dossier n’est pas là pour le moment.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>Le serveur n’est pas joignable.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted.</source>
        <translation>Le certificat du serveur n’est pas digne de confiance.</translation>
    </message>
    <message>
        <source>This folder cannot be written.</source>
        <translation>Impossible d’écrire dans ce dossier.</translation>
    </message>
    <message>
        <source>There is no space left in this folder.</source>
        <translation>Il n’y a plus de place dans ce dossier.</translation>
    </message>
    <message>
        <source>There is no space left in this account.</source>
        <translation>Il n’y a plus de place dans ce compte.</translation>
    </message>
    <message>
        <source>The account does not take files of this size.</source>
        <translation>Le compte n’accepte pas de fichiers de cette taille.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Ce n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The server shows no files at this address. If it asks for a second factor, use an app password.</source>
        <translation>Le serveur ne montre pas de fichiers à cette adresse. S’il demande un second facteur, utiliser un mot de passe d’application.</translation>
    </message>
    <message>
        <source>The account did not work as expected. Try again later.</source>
        <translation>Le compte n’a pas fonctionné comme prévu. Réessayer plus tard.</translation>
    </message>
    <message>
        <source>Starts Quillon when you log in</source>
        <translation>Démarre Quillon à l’ouverture de session</translation>
    </message>
    <message>
        <source>There is no keyring in this session to keep the password in.</source>
        <translation>Cette session n’a pas de trousseau où garder le mot de passe.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked.</source>
        <translation>Le trousseau n’a pas été déverrouillé.</translation>
    </message>
    <message>
        <source>The keyring did not answer.</source>
        <translation>Le trousseau n’a pas répondu.</translation>
    </message>
    <message>
        <source>Quillon is not in the status bar</source>
        <translation>Quillon n’est pas dans la barre d’état</translation>
    </message>
    <message>
        <source>This desktop shows no status items. Minimize the window to keep Quillon running: closing it ends Quillon.</source>
        <translation>Ce bureau n’affiche pas d’icônes d’état. Réduire la fenêtre pour que Quillon reste ouvert&#xa0;: la fermer met fin à Quillon.</translation>
    </message>
    <message>
        <source>Signed in to the folder %@</source>
        <translation>Connecté au dossier %@</translation>
    </message>
    <message>
        <source>Signed in as %@ at %@</source>
        <translation>Connecté en tant que %@ à %@</translation>
    </message>
    <message>
        <source>Signed out. Rules, history and settings stay on this computer.</source>
        <translation>Déconnecté. Règles, historique et réglages restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Looking for your files…</source>
        <translation>Recherche des fichiers…</translation>
    </message>
    <message>
        <source>Trying what the account can do…</source>
        <translation>Essai des capacités du compte…</translation>
    </message>
    <message>
        <source>Opening the account with the passphrase…</source>
        <translation>Ouverture du compte avec la phrase secrète…</translation>
    </message>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>En attente du trousseau…</translation>
    </message>
    <message>
        <source>Write the whole path of the folder.</source>
        <translation>Indiquer le chemin complet du dossier.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Saisir l’adresse du serveur.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Saisir le nom d’utilisateur.</translation>
    </message>
    <message>
        <source>Enter an app password.</source>
        <translation>Saisir un mot de passe d’application.</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Les deux phrases secrètes ne sont pas les mêmes.</translation>
    </message>
    <message>
        <source>The record has been deleted.</source>
        <translation>L’entrée a été supprimée.</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportation…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln were saved. Save again for more.</source>
        <translation>
            <numerusform>%Ln élément a été enregistré. Enregistrer à nouveau pour la suite.</numerusform>
            <numerusform>%Ln éléments ont été enregistrés. Enregistrer à nouveau pour la suite.</numerusform>
        </translation>
    </message>
    <message>
        <source>The records could not be read.</source>
        <translation>Impossible de lire les entrées.</translation>
    </message>
    <message>
        <source>The file could not be written. %@</source>
        <translation>Impossible d’écrire le fichier. %@</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Recherche…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records selected</source>
        <translation>
            <numerusform>%Ln entrée sélectionnée</numerusform>
            <numerusform>%Ln entrées sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>%@: %@</source>
        <translation>%@&#xa0;: %@</translation>
    </message>
    <message>
        <source>Nothing contains “%@”. Upper and lower case matter.</source>
        <translation>Rien ne contient «&#xa0;%@&#xa0;». Majuscules et minuscules comptent.</translation>
    </message>
    <message>
        <source>Every address change is listed here.</source>
        <translation>Chaque changement d’adresse figure ici.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Suppression…</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Enregistrement…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records deleted</source>
        <translation>
            <numerusform>Entrée supprimée</numerusform>
            <numerusform>%Ln entrées supprimées</numerusform>
        </translation>
    </message>
    <message>
        <source>The records could not be deleted.</source>
        <translation>Impossible de supprimer les entrées.</translation>
    </message>
    <message numerus="yes">
        <source>Delete %Ln records?</source>
        <translation>
            <numerusform>Supprimer&#xa0;%Ln entrée&#x202f;?</numerusform>
            <numerusform>Supprimer&#xa0;%Ln entrées&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>So many records at once cannot be brought back.</source>
        <translation>Tant d’entrées à la fois ne peuvent pas être récupérées.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses</source>
        <translation>
            <numerusform>%Ln adresse</numerusform>
            <numerusform>%Ln adresses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks</source>
        <translation>
            <numerusform>%Ln réseau</numerusform>
            <numerusform>%Ln réseaux</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing in the history that is not saved.</source>
        <translation>Rien dans l’historique qui ne soit enregistré.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks added.</source>
        <translation>
            <numerusform>%Ln réseau ajouté.</numerusform>
            <numerusform>%Ln réseaux ajoutés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses added.</source>
        <translation>
            <numerusform>%Ln adresse ajoutée.</numerusform>
            <numerusform>%Ln adresses ajoutées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ and %@ added.</source>
        <translation>Ajout de %@ et %@.</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>Impossible de lire l’historique.</translation>
    </message>
    <message>
        <source>%@ These are the newest %@; import again for more.</source>
        <translation>%@ Ce sont les %@ éléments les plus récents&#x202f;; importer à nouveau pour la suite.</translation>
    </message>
    <message>
        <source>Today %@</source>
        <translation>Aujourd’hui %@</translation>
    </message>
    <message>
        <source>Yesterday %@</source>
        <translation>Hier %@</translation>
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
        <translation>Date</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Search All Fields</source>
        <translation>Rechercher dans tout</translation>
    </message>
    <message>
        <source>Search Devices</source>
        <translation>Rechercher un périphérique</translation>
    </message>
    <message>
        <source>Search Interfaces</source>
        <translation>Rechercher une interface</translation>
    </message>
    <message>
        <source>Search Addresses</source>
        <translation>Rechercher une adresse</translation>
    </message>
    <message>
        <source>Search Network Names</source>
        <translation>Rechercher un réseau</translation>
    </message>
    <message>
        <source>Search BSSIDs</source>
        <translation>Rechercher un BSSID</translation>
    </message>
    <message>
        <source>Search Notes</source>
        <translation>Rechercher dans les notes</translation>
    </message>
    <message>
        <source>%@ was given %@.</source>
        <translation>%@ a reçu %@.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@.</source>
        <translation>%@ (%@) a reçu %@.</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@ on %@.</source>
        <translation>%@ (%@) a reçu %@ sur %@.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records</source>
        <translation>
            <numerusform>%Ln entrée</numerusform>
            <numerusform>%Ln entrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%@ of %Ln records</source>
        <translation>
            <numerusform>%@ sur&#xa0;%Ln entrée</numerusform>
            <numerusform>%@ sur&#xa0;%Ln entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>New Network Rule…</source>
        <translation>Nouvelle règle de réseau…</translation>
    </message>
    <message>
        <source>New Login Rule…</source>
        <translation>Nouvelle règle de session…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>%@Hardware Address · %@</source>
        <translation>%@Adresse matérielle · %@</translation>
    </message>
    <message>
        <source>%@Current Address · %@</source>
        <translation>%@Adresse actuelle · %@</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>Rendre aléatoire</translation>
    </message>
    <message>
        <source>%@Resume Timer</source>
        <translation>%@Reprendre le minuteur</translation>
    </message>
    <message>
        <source>%@Pause Timer</source>
        <translation>%@Suspendre le minuteur</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Pas encore dans cette version</translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation>Ouvrir Quillon</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Saved Networks and Addresses</source>
        <translation>Réseaux et adresses enregistrés</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>About Quillon</source>
        <translation>À propos de Quillon</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>Quitter Quillon</translation>
    </message>
    <message>
        <source>Looking it up…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message>
        <source>Look-up is off</source>
        <translation>Recherche désactivée</translation>
    </message>
    <message>
        <source>A public service is being asked under which address it sees you.</source>
        <translation>Un service public est interrogé&#xa0;: sous quelle adresse voit-il cet ordinateur&#x202f;?</translation>
    </message>
    <message>
        <source>The public service did not answer. This is what it said before. The button asks again.</source>
        <translation>Le service public n’a pas répondu. Voici sa réponse précédente. Le bouton l’interroge à nouveau.</translation>
    </message>
    <message>
        <source>The public service did not answer with an address. The button asks again.</source>
        <translation>Le service public n’a pas répondu par une adresse. Le bouton l’interroge à nouveau.</translation>
    </message>
    <message>
        <source>It is not looked up by itself. The button asks a public service once.</source>
        <translation>L’adresse n’est pas recherchée d’elle-même. Le bouton interroge une fois un service public.</translation>
    </message>
    <message>
        <source>Remove Network from Favorites</source>
        <translation>Retirer le réseau des favoris</translation>
    </message>
    <message>
        <source>Add Network to Favorites</source>
        <translation>Ajouter le réseau aux favoris</translation>
    </message>
    <message>
        <source>Remove Address from Favorites</source>
        <translation>Retirer l’adresse des favoris</translation>
    </message>
    <message>
        <source>Add Address to Favorites</source>
        <translation>Ajouter l’adresse aux favoris</translation>
    </message>
    <message>
        <source>Network name</source>
        <translation>Nom du réseau</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>MCS</source>
        <translation>MCS</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Wi-Fi is switched off.</source>
        <translation>Le Wi-Fi est désactivé.</translation>
    </message>
    <message>
        <source>Write it with colons: %@.</source>
        <translation>Écrire avec des deux-points&#xa0;: %@.</translation>
    </message>
    <message>
        <source>This is not a MAC address.</source>
        <translation>Ce n’est pas une adresse MAC.</translation>
    </message>
    <message>
        <source>A MAC address has 12 hexadecimal digits.</source>
        <translation>Une adresse MAC a 12 chiffres hexadécimaux.</translation>
    </message>
    <message>
        <source>%@ is saved already.</source>
        <translation>%@ est déjà enregistré.</translation>
    </message>
    <message>
        <source>A network needs its name, too.</source>
        <translation>Un réseau a aussi besoin de son nom.</translation>
    </message>
    <message>
        <source>Group address: most adapters refuse it.</source>
        <translation>Adresse de groupe&#xa0;: la plupart des cartes la refusent.</translation>
    </message>
    <message>
        <source>Favorite removed</source>
        <translation>Favori retiré</translation>
    </message>
    <message>
        <source>Configure %@</source>
        <translation>Configurer %@</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>Absente</translation>
    </message>
    <message>
        <source>Changing…</source>
        <translation>Modification…</translation>
    </message>
    <message>
        <source>The address is now %@.</source>
        <translation>L’adresse est maintenant %@.</translation>
    </message>
    <message>
        <source>The address is being changed</source>
        <translation>L’adresse est en cours de modification</translation>
    </message>
    <message>
        <source>The interface is not there</source>
        <translation>L’interface est absente</translation>
    </message>
    <message>
        <source>The helper tool is not installed</source>
        <translation>L’outil auxiliaire n’est pas installé</translation>
    </message>
    <message>
        <source>The interface has no factory address that is known</source>
        <translation>L’adresse d’usine de l’interface n’est pas connue</translation>
    </message>
    <message>
        <source>The interface has its factory address</source>
        <translation>L’interface a son adresse d’usine</translation>
    </message>
    <message>
        <source>Gives the interface a random, locally administered address</source>
        <translation>Donne à l’interface une adresse aléatoire, administrée localement</translation>
    </message>
    <message>
        <source>Gives the interface its hardware address again</source>
        <translation>Redonne à l’interface son adresse matérielle</translation>
    </message>
    <message>
        <source>Read the License</source>
        <translation>Lire la licence</translation>
    </message>
    <message>
        <source>The License on the Web</source>
        <translation>La licence sur le Web</translation>
    </message>
    <message>
        <source>Where Vendors Are Registered</source>
        <translation>Où les fabricants sont inscrits</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or any later version. It comes without any warranty.</source>
        <translation>Logiciel libre sous la licence publique générale GNU, version 3 ou toute version ultérieure. Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>No program here opens %@</source>
        <translation>Aucun programme n’ouvre %@ ici</translation>
    </message>
    <message>
        <source>Helper: installed, version %@</source>
        <translation>Outil auxiliaire&#xa0;: installé, version %@</translation>
    </message>
    <message>
        <source>Helper: not installed</source>
        <translation>Outil auxiliaire&#xa0;: non installé</translation>
    </message>
    <message>
        <source>Helper: outdated, version %@</source>
        <translation>Outil auxiliaire&#xa0;: ancien, version %@</translation>
    </message>
    <message>
        <source>No account yet: there is nowhere to sync with.</source>
        <translation>Pas encore de compte&#xa0;: rien avec quoi synchroniser.</translation>
    </message>
    <message>
        <source>Not while this desktop shows no status items.</source>
        <translation>Pas tant que ce bureau n’affiche pas d’icônes d’état.</translation>
    </message>
    <message>
        <source>Only with the icon in the status bar.</source>
        <translation>Seulement avec l’icône dans la barre d’état.</translation>
    </message>
    <message>
        <source>no program that is known</source>
        <translation>aucun programme connu</translation>
    </message>
    <message>
        <source>This desktop does not start programs at login by itself.</source>
        <translation>Ce bureau ne démarre pas de programmes de lui-même à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Whether this desktop starts programs at login cannot be told from here.</source>
        <translation>Impossible de savoir d’ici si ce bureau démarre des programmes à l’ouverture de session.</translation>
    </message>
    <message>
        <source>The program that starts Quillon at login is not installed.</source>
        <translation>Le programme qui démarre Quillon à l’ouverture de session n’est pas installé.</translation>
    </message>
    <message>
        <source>The autostart entry is missing or cannot be written. Switch this off and on again to have it made anew.</source>
        <translation>L’entrée de démarrage automatique manque ou ne peut être écrite. Désactiver puis réactiver cette option pour la recréer.</translation>
    </message>
    <message>
        <source>There still is an autostart entry. Switch this on and off again to have it taken out.</source>
        <translation>Il reste une entrée de démarrage automatique. Activer puis désactiver cette option pour l’enlever.</translation>
    </message>
    <message>
        <source>The desktop has Quillon switched off in its own list. Switch this off and on again to have it started.</source>
        <translation>Le bureau a désactivé Quillon dans sa propre liste. Désactiver puis réactiver cette option pour le faire démarrer.</translation>
    </message>
    <message>
        <source>The autostart entry is for other desktops only. Switch this off and on again to have it act here.</source>
        <translation>L’entrée de démarrage automatique ne vaut que pour d’autres bureaux. Désactiver puis réactiver cette option pour qu’elle agisse ici.</translation>
    </message>
    <message>
        <source>There is an autostart entry of your own: it is left as it is.</source>
        <translation>Il existe une entrée de démarrage automatique personnelle&#xa0;: elle reste telle quelle.</translation>
    </message>
    <message>
        <source>GeneralPreferences_en</source>
        <translation>GeneralPreferences_en</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>AdvancedPreferences_en</source>
        <translation>AdvancedPreferences_en</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>DisplayPreferences_en</source>
        <translation>DisplayPreferences_en</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>VendorPreferences_en</source>
        <translation>VendorPreferences_en</translation>
    </message>
    <message>
        <source>Vendor Data</source>
        <translation>Données des fabricants</translation>
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
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>AboutPreferences_en</source>
        <translation>AboutPreferences_en</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Type a shortcut</source>
        <translation>Saisir un raccourci</translation>
    </message>
    <message>
        <source>Escape keeps the shortcut of before, Backspace clears it.</source>
        <translation>Échap garde l’ancien raccourci, Retour arrière l’efface.</translation>
    </message>
    <message>
        <source>This key cannot be part of a shortcut.</source>
        <translation>Cette touche ne peut pas faire partie d’un raccourci.</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>Définir un raccourci</translation>
    </message>
    <message>
        <source>The desktop has the last word: its settings show the keys that act.</source>
        <translation>Le bureau a le dernier mot&#xa0;: ses paramètres montrent les touches qui agissent.</translation>
    </message>
    <message>
        <source>“%@” uses this shortcut.</source>
        <translation>«&#xa0;%@&#xa0;» utilise ce raccourci.</translation>
    </message>
    <message>
        <source>Any Network</source>
        <translation>Tout réseau</translation>
    </message>
    <message>
        <source>An Unknown Network</source>
        <translation>Un réseau inconnu</translation>
    </message>
    <message>
        <source>No interface here can be changed.</source>
        <translation>Aucune interface ne peut être modifiée ici.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not here any more.</source>
        <translation>La règle visait %@, qui n’est plus là.</translation>
    </message>
    <message>
        <source>Login rules do not act on Wi-Fi.</source>
        <translation>Les règles de session n’agissent pas sur le Wi-Fi.</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not saved any more.</source>
        <translation>La règle visait %@, qui n’est plus enregistré.</translation>
    </message>
    <message>
        <source>%@ is not saved: press its heart first.</source>
        <translation>%@ n’est pas enregistré&#xa0;: cliquer d’abord sur son cœur.</translation>
    </message>
    <message>
        <source>“%@” is no vendor: choose one from the list.</source>
        <translation>«&#xa0;%@&#xa0;» n’est pas un fabricant&#xa0;: en choisir un dans la liste.</translation>
    </message>
    <message>
        <source>Repeated addresses have the vendor of the main window, not this one.</source>
        <translation>Les adresses répétées ont le fabricant de la fenêtre principale, pas celui-ci.</translation>
    </message>
    <message>
        <source>Save or cancel this rule before you begin another one.</source>
        <translation>Enregistrer ou annuler cette règle avant d’en commencer une autre.</translation>
    </message>
    <message>
        <source>The rule that was open is not there any more.</source>
        <translation>La règle qui était ouverte n’existe plus.</translation>
    </message>
    <message>
        <source>Another rule for this interface and network was switched off: only one can be on.</source>
        <translation>Une autre règle pour cette interface et ce réseau a été désactivée&#xa0;: une seule peut être active.</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Chaque jour</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Chaque semaine</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Chaque mois</translation>
    </message>
    <message>
        <source>The internet cannot be reached now.</source>
        <translation>Internet n’est pas joignable pour le moment.</translation>
    </message>
    <message>
        <source>The place to look at is not an https address.</source>
        <translation>L’endroit à consulter n’est pas une adresse https.</translation>
    </message>
    <message>
        <source>The list of versions could not be fetched.</source>
        <translation>Impossible d’obtenir la liste des versions.</translation>
    </message>
    <message>
        <source>What came is not from the authors of Quillon and was not used.</source>
        <translation>Ce qui a été reçu ne vient pas des auteurs de Quillon et n’a pas été utilisé.</translation>
    </message>
    <message>
        <source>The list of versions that came is out of date and was not used.</source>
        <translation>La liste des versions reçue est périmée et n’a pas été utilisée.</translation>
    </message>
    <message>
        <source>Your system&apos;s software updates bring new versions.</source>
        <translation>Les mises à jour du système apportent les nouvelles versions.</translation>
    </message>
    <message>
        <source>It was built without a list of versions to ask for. Nothing is asked, whatever is chosen here.</source>
        <translation>Elle a été construite sans liste de versions à interroger. Rien n’est interrogé, quel que soit le choix fait ici.</translation>
    </message>
    <message>
        <source>Last checked: %@</source>
        <translation>Dernière recherche&#xa0;: %@</translation>
    </message>
    <message>
        <source>Not checked yet.</source>
        <translation>Pas encore de recherche.</translation>
    </message>
    <message>
        <source>Quillon %@ is available</source>
        <translation>Quillon %@ est disponible</translation>
    </message>
    <message>
        <source>This is version %@.</source>
        <translation>Version actuelle&#xa0;: %@.</translation>
    </message>
    <message>
        <source>Quillon %@ is the newest version.</source>
        <translation>Quillon %@ est la version la plus récente.</translation>
    </message>
    <message>
        <source>No browser could be opened.</source>
        <translation>Impossible d’ouvrir un navigateur.</translation>
    </message>
    <message>
        <source>The list of vendors is missing.</source>
        <translation>La liste des fabricants manque.</translation>
    </message>
    <message>
        <source>No vendor begins with “%@”.</source>
        <translation>Aucun fabricant ne commence par «&#xa0;%@&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>%@ Vendor Identifiers</source>
        <translation>
            <numerusform>%@ identifiant de fabricant</numerusform>
            <numerusform>%@ identifiants de fabricants</numerusform>
        </translation>
    </message>
    <message>
        <source>Update database</source>
        <translation>Mettre à jour la base</translation>
    </message>
    <message>
        <source>Getting download information...</source>
        <translation>Recherche des informations de téléchargement...</translation>
    </message>
    <message>
        <source>Updating Vendor Identifier count...</source>
        <translation>Mise à jour du nombre d’identifiants...</translation>
    </message>
    <message>
        <source>Cancel download...</source>
        <translation>Annuler le téléchargement...</translation>
    </message>
    <message>
        <source>Downloading... %@MB</source>
        <translation>Téléchargement... %@&#xa0;Mo</translation>
    </message>
    <message>
        <source>Downloading... %@% of %@MB</source>
        <translation>Téléchargement... %@&#xa0;% de %@&#xa0;Mo</translation>
    </message>
    <message>
        <source>Download cancelled...</source>
        <translation>Téléchargement annulé...</translation>
    </message>
    <message>
        <source>Processing data...</source>
        <translation>Traitement des données...</translation>
    </message>
    <message>
        <source>Parsing file failed...</source>
        <translation>Échec de l’analyse du fichier...</translation>
    </message>
    <message>
        <source>Last Updated: %@</source>
        <translation>Dernière mise à jour&#xa0;: %@</translation>
    </message>
    <message>
        <source>Restoring the previous database...</source>
        <translation>Rétablissement de la base précédente...</translation>
    </message>
    <message>
        <source>Restoring failed...</source>
        <translation>Échec du rétablissement...</translation>
    </message>
    <message>
        <source>Getting Vendor Identifier count...</source>
        <translation>Comptage des identifiants...</translation>
    </message>
    <message>
        <source>This is the address in use. Type or drop another to change it.</source>
        <translation>C’est l’adresse utilisée. Pour la changer, en saisir ou en déposer une autre.</translation>
    </message>
    <message>
        <source>Press Return or Apply to use this address.</source>
        <translation>Entrée ou «&#xa0;Appliquer&#xa0;» pour utiliser cette adresse.</translation>
    </message>
    <message>
        <source>Install the helper to change the address.</source>
        <translation>Installer l’outil auxiliaire pour changer l’adresse.</translation>
    </message>
    <message>
        <source>This interface is not there: select another.</source>
        <translation>Cette interface est absente&#xa0;: en choisir une autre.</translation>
    </message>
    <message>
        <source>No interface is selected: there is none whose address can be changed</source>
        <translation>Aucune interface n’est sélectionnée dont l’adresse puisse être modifiée</translation>
    </message>
    <message>
        <source>The selected interface is not there</source>
        <translation>L’interface sélectionnée est absente</translation>
    </message>
    <message>
        <source>The field holds no other address to apply</source>
        <translation>Le champ ne contient pas d’autre adresse à appliquer</translation>
    </message>
    <message>
        <source>Changing an address needs administrator rights, which Quillon itself never has. A small helper makes the change and nothing else. Installing it asks for an administrator&apos;s password once; Preferences › Advanced removes it again.</source>
        <translation>Changer une adresse demande des droits d’administrateur, que Quillon n’a jamais lui-même. Un petit outil auxiliaire fait le changement et rien d’autre. Son installation demande une fois le mot de passe d’un administrateur&#x202f;; Préférences › Avancé permet de l’enlever.</translation>
    </message>
    <message>
        <source>(paused)</source>
        <translation>(suspendu)</translation>
    </message>
    <message>
        <source>...changing MAC Address in %@</source>
        <translation>...nouvelle adresse MAC dans %@</translation>
    </message>
    <message>
        <source>Quillon Timer started</source>
        <translation>Minuteur Quillon démarré</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made first.</source>
        <translation>«&#xa0;%@&#xa0;» s’applique à la place&#xa0;: elle a été créée d’abord.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: this network is not saved.</source>
        <translation>«&#xa0;%@&#xa0;» s’applique à la place&#xa0;: ce réseau n’est pas enregistré.</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made for this network.</source>
        <translation>«&#xa0;%@&#xa0;» s’applique à la place&#xa0;: elle a été créée pour ce réseau.</translation>
    </message>
    <message>
        <source>Not in force: %@ is on no network.</source>
        <translation>Ne s’applique pas&#xa0;: %@ n’est sur aucun réseau.</translation>
    </message>
    <message>
        <source>Not in force: the network in use is saved.</source>
        <translation>Ne s’applique pas&#xa0;: le réseau utilisé est enregistré.</translation>
    </message>
    <message>
        <source>Not in force: another network is in use.</source>
        <translation>Ne s’applique pas&#xa0;: un autre réseau est utilisé.</translation>
    </message>
    <message>
        <source>Not in force: it is switched off.</source>
        <translation>Ne s’applique pas&#xa0;: elle est désactivée.</translation>
    </message>
    <message>
        <source>Not in force: %@ is not here.</source>
        <translation>Ne s’applique pas&#xa0;: %@ n’est pas là.</translation>
    </message>
    <message>
        <source>Not in force: login rules do not act on Wi-Fi.</source>
        <translation>Ne s’applique pas&#xa0;: les règles de session n’agissent pas sur le Wi-Fi.</translation>
    </message>
    <message>
        <source>In force: it acts when Quillon is started at login.</source>
        <translation>S’applique&#xa0;: elle agit quand Quillon démarre à l’ouverture de session.</translation>
    </message>
    <message>
        <source>In force now.</source>
        <translation>S’applique maintenant.</translation>
    </message>
    <message>
        <source>In force, but %@ is not connected.</source>
        <translation>S’applique, mais %@ n’est pas connecté.</translation>
    </message>
    <message>
        <source>Not in force now.</source>
        <translation>Ne s’applique pas maintenant.</translation>
    </message>
    <message>
        <source>On %@, leave %@ as it is.</source>
        <translation>Sur %@, laisser %@ tel quel.</translation>
    </message>
    <message>
        <source>On any network, leave %@ as it is.</source>
        <translation>Sur tout réseau, laisser %@ tel quel.</translation>
    </message>
    <message>
        <source>On an unknown network, leave %@ as it is.</source>
        <translation>Sur un réseau inconnu, laisser %@ tel quel.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address once.</source>
        <translation>Sur %@, donner une fois à %@ une adresse aléatoire.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address once.</source>
        <translation>Sur tout réseau, donner une fois à %@ une adresse aléatoire.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address once.</source>
        <translation>Sur un réseau inconnu, donner une fois à %@ une adresse aléatoire.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address.</source>
        <translation>À l’ouverture de session, donner à %@ une adresse aléatoire.</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address by %@ once.</source>
        <translation>Sur %@, donner une fois à %@ une adresse aléatoire de %@.</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address by %@ once.</source>
        <translation>Sur tout réseau, donner une fois à %@ une adresse aléatoire de %@.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address by %@ once.</source>
        <translation>Sur un réseau inconnu, donner une fois à %@ une adresse aléatoire de %@.</translation>
    </message>
    <message>
        <source>At login, give %@ a random address by %@.</source>
        <translation>À l’ouverture de session, donner à %@ une adresse aléatoire de %@.</translation>
    </message>
    <message numerus="yes">
        <source>On %@, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>Sur %@, donner à %@ une nouvelle adresse aléatoire chaque minute.</numerusform>
            <numerusform>Sur %@, donner à %@ une nouvelle adresse aléatoire toutes les&#xa0;%n minutes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On any network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>Sur tout réseau, donner à %@ une nouvelle adresse aléatoire chaque minute.</numerusform>
            <numerusform>Sur tout réseau, donner à %@ une nouvelle adresse aléatoire toutes les&#xa0;%n minutes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On an unknown network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>Sur un réseau inconnu, donner à %@ une nouvelle adresse aléatoire chaque minute.</numerusform>
            <numerusform>Sur un réseau inconnu, donner à %@ une nouvelle adresse aléatoire toutes les&#xa0;%n minutes.</numerusform>
        </translation>
    </message>
    <message>
        <source>On %@, give %@ the address %@.</source>
        <translation>Sur %@, donner à %@ l’adresse %@.</translation>
    </message>
    <message>
        <source>On any network, give %@ the address %@.</source>
        <translation>Sur tout réseau, donner à %@ l’adresse %@.</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ the address %@.</source>
        <translation>Sur un réseau inconnu, donner à %@ l’adresse %@.</translation>
    </message>
    <message>
        <source>At login, give %@ the address %@.</source>
        <translation>À l’ouverture de session, donner à %@ l’adresse %@.</translation>
    </message>
    <message>
        <source>has an Active rule</source>
        <translation>Une règle est active</translation>
    </message>
    <message>
        <source>no rules are currently Active</source>
        <translation>Aucune règle n’est active actuellement</translation>
    </message>
    <message>
        <source>no rules have been configured</source>
        <translation>Aucune règle n’est définie</translation>
    </message>
    <message>
        <source>Please sign in to iCloud</source>
        <translation>Veuillez vous connecter à iCloud</translation>
    </message>
    <message>
        <source>Open System Settings, and login into your iCloud account to enable sync across all your devices.</source>
        <translation>Ouvrir les paramètres système et se connecter au compte iCloud pour activer la synchronisation entre tous les appareils.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your iCloud account has changed. Do you want to synchronise with the new account?</source>
        <translation>Le compte iCloud a changé. Synchroniser avec le nouveau compte&#x202f;?</translation>
    </message>
    <message>
        <source>You are asked this after you have logged in to a new iCloud account, and after the computer was restored from a backup.</source>
        <translation>Cette question apparaît après une connexion à un nouveau compte iCloud, et après la restauration de l’ordinateur depuis une sauvegarde.</translation>
    </message>
    <message>
        <source>iCloud</source>
        <translation>iCloud</translation>
    </message>
    <message>
        <source>updates received</source>
        <translation>mises à jour reçues</translation>
    </message>
    <message>
        <source>Account…</source>
        <translation>Compte…</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>Signs in to the account to sync with</source>
        <translation>Se connecte au compte avec lequel synchroniser</translation>
    </message>
    <message>
        <source>Forgets the account and its passwords on this computer</source>
        <translation>Oublie le compte et ses mots de passe sur cet ordinateur</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Sync Account</source>
        <translation>Compte de synchronisation</translation>
    </message>
    <message>
        <source>Kind of account</source>
        <translation>Type de compte</translation>
    </message>
    <message>
        <source>Where the files of the account are</source>
        <translation>Où se trouvent les fichiers du compte</translation>
    </message>
    <message>
        <source>Nextcloud or WebDAV</source>
        <translation>Nextcloud ou WebDAV</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Encrypts what is stored. The same on all your computers; without it nothing can be read.</source>
        <translation>Chiffre ce qui est stocké. La même sur tous les ordinateurs&#x202f;; sans elle, rien ne peut être lu.</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Phrase secrète</translation>
    </message>
    <message>
        <source>What the account holds is replaced by this computer&apos;s settings.</source>
        <translation>Les réglages de cet ordinateur remplacent ce que contient le compte.</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Its address, or that of your files there, as a browser shows it</source>
        <translation>Son adresse, ou celle des fichiers qui s’y trouvent, comme un navigateur la montre</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>The name that you have at this server</source>
        <translation>Le nom chez ce serveur</translation>
    </message>
    <message>
        <source>App password</source>
        <translation>Mot de passe d’application</translation>
    </message>
    <message>
        <source>Made in the security settings of your account at the server</source>
        <translation>Créé dans les paramètres de sécurité du compte chez le serveur</translation>
    </message>
    <message>
        <source>Kept in your keyring.</source>
        <translation>Gardé dans le trousseau.</translation>
    </message>
    <message>
        <source>One that another program makes equal on your computers.</source>
        <translation>Un dossier qu’un autre programme garde identique sur tous les ordinateurs.</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Looks for it in your files</source>
        <translation>Le recherche parmi les fichiers</translation>
    </message>
    <message>
        <source>Repeat passphrase</source>
        <translation>Répéter la phrase secrète</translation>
    </message>
    <message>
        <source>The account is new: nobody can tell you later what you typed</source>
        <translation>Le compte est nouveau&#xa0;: personne ne pourra dire plus tard ce qui a été saisi</translation>
    </message>
    <message>
        <source>This is the SHA-256 fingerprint of the server&apos;s certificate. Accept it only if the server&apos;s administrator tells you the same one.</source>
        <translation>Voici l’empreinte SHA-256 du certificat du serveur. Ne l’accepter que si l’administrateur du serveur donne la même.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy Fingerprint</source>
        <translation>Copier l’empreinte</translation>
    </message>
    <message>
        <source>To compare it in another window</source>
        <translation>Pour la comparer dans une autre fenêtre</translation>
    </message>
    <message>
        <source>Accept Certificate</source>
        <translation>Accepter le certificat</translation>
    </message>
    <message>
        <source>Signs in, and trusts this certificate for this account from now on</source>
        <translation>Connecte, et fait désormais confiance à ce certificat pour ce compte</translation>
    </message>
    <message>
        <source>Gives up what is under way, or closes</source>
        <translation>Abandonne ce qui est en cours, ou ferme</translation>
    </message>
    <message>
        <source>Signing In…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Tries the account, and switches sync on</source>
        <translation>Essaie le compte et active la synchronisation</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Return saves the note, Escape gives it up.</source>
        <translation>Entrée enregistre la note, Échap l’abandonne.</translation>
    </message>
    <message>
        <source>F2 edits the note, Delete deletes.</source>
        <translation>F2 modifie la note, Suppr supprime.</translation>
    </message>
    <message>
        <source>Save Addresses</source>
        <translation>Garder les adresses</translation>
    </message>
    <message>
        <source>Adds the addresses of the selected records to the saved ones.</source>
        <translation>Ajoute les adresses des entrées sélectionnées à celles enregistrées.</translation>
    </message>
    <message>
        <source>Save Networks</source>
        <translation>Garder les réseaux</translation>
    </message>
    <message>
        <source>Adds the networks of the selected records to the saved ones.</source>
        <translation>Ajoute les réseaux des entrées sélectionnées à ceux enregistrés.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Writes what is listed into a file that spreadsheets read.</source>
        <translation>Écrit ce qui est affiché dans un fichier que lisent les tableurs.</translation>
    </message>
    <message>
        <source>Deletes the selected records.</source>
        <translation>Supprime les entrées sélectionnées.</translation>
    </message>
    <message>
        <source>Upper and lower case matter.</source>
        <translation>Majuscules et minuscules comptent.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>What is done stays done.</source>
        <translation>Ce qui est fait reste fait.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Edit Note</source>
        <translation>Modifier la note</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Reverse Order</source>
        <translation>Inverser l’ordre</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>Exporter l’historique</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>File menu</source>
        <translation>Menu Fichier</translation>
    </message>
    <message>
        <source>File menu (F10)</source>
        <translation>Menu Fichier (F10)</translation>
    </message>
    <message>
        <source>External address</source>
        <translation>Adresse externe</translation>
    </message>
    <message>
        <source>Refresh external address</source>
        <translation>Actualiser l’adresse externe</translation>
    </message>
    <message>
        <source>Asks a public service under which address it sees you</source>
        <translation>Demande à un service public sous quelle adresse il voit cet ordinateur</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nom (facultatif)</translation>
    </message>
    <message>
        <source>Saved addresses</source>
        <translation>Adresses enregistrées</translation>
    </message>
    <message>
        <source>Add the current address with the heart.</source>
        <translation>Le cœur ajoute l’adresse actuelle.</translation>
    </message>
    <message>
        <source>Edit Saved Items</source>
        <translation>Modifier les éléments enregistrés</translation>
    </message>
    <message>
        <source>Opens the window of saved networks and addresses</source>
        <translation>Ouvre la fenêtre des réseaux et adresses enregistrés</translation>
    </message>
    <message>
        <source>Click to put one into the field, or drag it there.</source>
        <translation>Cliquer sur une adresse pour la mettre dans le champ, ou l’y faire glisser.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>Réseaux</translation>
    </message>
    <message>
        <source>Join a network and press its heart.</source>
        <translation>Se connecter à un réseau et cliquer sur son cœur.</translation>
    </message>
    <message>
        <source>Network…</source>
        <translation>Réseau…</translation>
    </message>
    <message>
        <source>Save a network by hand</source>
        <translation>Enregistrer un réseau à la main</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>Adresses</translation>
    </message>
    <message>
        <source>Open the saved addresses and press the heart.</source>
        <translation>Ouvrir les adresses enregistrées et cliquer sur le cœur.</translation>
    </message>
    <message>
        <source>Address…</source>
        <translation>Adresse…</translation>
    </message>
    <message>
        <source>Save an address by hand</source>
        <translation>Enregistrer une adresse à la main</translation>
    </message>
    <message>
        <source>Import from History</source>
        <translation>Importer de l’historique</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importation…</translation>
    </message>
    <message>
        <source>Save the addresses and networks that the history knows</source>
        <translation>Enregistrer les adresses et réseaux que connaît l’historique</translation>
    </message>
    <message>
        <source>Recognize by</source>
        <translation>Reconnaître par</translation>
    </message>
    <message>
        <source>Name %@</source>
        <translation>Nom %@</translation>
    </message>
    <message>
        <source>Access point %@</source>
        <translation>Point d’accès %@</translation>
    </message>
    <message>
        <source>Pause the countdown of %@</source>
        <translation>Suspendre le compte à rebours de %@</translation>
    </message>
    <message>
        <source>Resume the countdown of %@</source>
        <translation>Reprendre le compte à rebours de %@</translation>
    </message>
    <message>
        <source>Countdown paused</source>
        <translation>Compte à rebours suspendu</translation>
    </message>
    <message>
        <source>Countdown resumed</source>
        <translation>Compte à rebours repris</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifiée</translation>
    </message>
    <message>
        <source>Hardware %@</source>
        <translation>Matériel %@</translation>
    </message>
    <message>
        <source>Vendor %@</source>
        <translation>Fabricant %@</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>Adresse actuelle</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <translation>Interfaces</translation>
    </message>
    <message>
        <source>Randomizing…</source>
        <translation>Changement…</translation>
    </message>
    <message>
        <source>Rules of %@</source>
        <translation>Règles de %@</translation>
    </message>
    <message>
        <source>Randomize %@</source>
        <translation>Rendre l’adresse de %@ aléatoire</translation>
    </message>
    <message>
        <source>Randomizing %@</source>
        <translation>L’adresse de %@ est rendue aléatoire</translation>
    </message>
    <message>
        <source>Restore the hardware address of %@</source>
        <translation>Rétablir l’adresse matérielle de %@</translation>
    </message>
    <message>
        <source>Restoring the hardware address of %@</source>
        <translation>L’adresse matérielle de %@ est rétablie</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Actua&amp;liser</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Reads the interfaces and their addresses anew</source>
        <translation>Relit les interfaces et leurs adresses</translation>
    </message>
    <message>
        <source>There are interfaces that are not listed here yet.</source>
        <translation>Il y a des interfaces qui ne figurent pas encore ici.</translation>
    </message>
    <message>
        <source>The list shows the addresses as they were when it was opened.</source>
        <translation>La liste montre les adresses telles qu’à son ouverture.</translation>
    </message>
    <message>
        <source>&amp;Install Helper</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>The helper is not installed</source>
        <translation>L’outil auxiliaire manque</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Installation…</translation>
    </message>
    <message>
        <source>Install helper</source>
        <translation>Installer l’outil auxiliaire</translation>
    </message>
    <message>
        <source>Asks for an administrator&apos;s password</source>
        <translation>Demande le mot de passe d’un administrateur</translation>
    </message>
    <message>
        <source>By the Quillon authors</source>
        <translation>Par les auteurs de Quillon</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>Ask when another program replaces an address</source>
        <translation>Demander quand un autre programme remplace une adresse</translation>
    </message>
    <message>
        <source>Who manages each interface</source>
        <translation>Qui gère les interfaces</translation>
    </message>
    <message>
        <source>Uninstalling…</source>
        <translation>Désinstallation…</translation>
    </message>
    <message>
        <source>Repeat every %@ minutes by default</source>
        <translation>Répéter toutes les %@ minutes par défaut</translation>
    </message>
    <message>
        <source>For rules whose own minutes are left empty</source>
        <translation>Pour les règles dont les minutes sont laissées vides</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>Majuscules</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>Minuscules</translation>
    </message>
    <message>
        <source>Letters of addresses</source>
        <translation>Lettres des adresses</translation>
    </message>
    <message>
        <source>Look up the external address</source>
        <translation>Rechercher l’adresse externe</translation>
    </message>
    <message>
        <source>Asks a public service whenever the network changes.</source>
        <translation>Interroge un service public à chaque changement de réseau.</translation>
    </message>
    <message>
        <source>Start Quillon at login</source>
        <translation>Démarrer Quillon à l’ouverture de session</translation>
    </message>
    <message>
        <source>Do not open the window at login</source>
        <translation>Ne pas ouvrir la fenêtre à l’ouverture de session</translation>
    </message>
    <message>
        <source>Show in the status bar</source>
        <translation>Afficher dans la barre d’état</translation>
    </message>
    <message>
        <source>Hide from the task bar</source>
        <translation>Masquer de la barre des tâches</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Afficher les notifications</translation>
    </message>
    <message>
        <source>Shortcuts that work in every window</source>
        <translation>Raccourcis valables dans toutes les fenêtres</translation>
    </message>
    <message>
        <source>Sync settings, rules and history</source>
        <translation>Synchroniser réglages, règles et historique</translation>
    </message>
    <message>
        <source>Shortcut for “%@”</source>
        <translation>Raccourci pour «&#xa0;%@&#xa0;»</translation>
    </message>
    <message>
        <source>Clear the shortcut for “%@”</source>
        <translation>Effacer le raccourci pour «&#xa0;%@&#xa0;»</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Countdown ended</source>
        <translation>Compte à rebours terminé</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules deleted</source>
        <translation>
            <numerusform>Règle supprimée</numerusform>
            <numerusform>%Ln règles supprimées</numerusform>
        </translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>Save Rule</source>
        <translation>Enregistrer la règle</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>Ne rien faire</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>Changer l’adresse</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Une fois</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Toutes les</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>New Random Address</source>
        <translation>Nouvelle adresse aléatoire</translation>
    </message>
    <message>
        <source>Makes a random address, saves it, and uses it whenever the rule acts</source>
        <translation>Crée une adresse aléatoire, l’enregistre et l’utilise chaque fois que la règle agit</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>New rules start switched off.</source>
        <translation>Les nouvelles règles sont d’abord désactivées.</translation>
    </message>
    <message>
        <source>Press Return to rename the rule</source>
        <translation>Entrée pour renommer la règle</translation>
    </message>
    <message>
        <source>Active rule</source>
        <translation>Règle active</translation>
    </message>
    <message>
        <source>No active rules</source>
        <translation>Aucune règle active</translation>
    </message>
    <message>
        <source>No rules</source>
        <translation>Aucune règle</translation>
    </message>
    <message>
        <source>No rule for this interface.</source>
        <translation>Aucune règle pour cette interface.</translation>
    </message>
    <message>
        <source>Edit Rules</source>
        <translation>Modifier les règles</translation>
    </message>
    <message>
        <source>Opens the rule editor</source>
        <translation>Ouvre l’éditeur de règles</translation>
    </message>
    <message>
        <source>Rules change the address when you join a network.</source>
        <translation>Les règles changent l’adresse à la connexion à un réseau.</translation>
    </message>
    <message>
        <source>New Network Rule</source>
        <translation>Nouvelle règle de réseau</translation>
    </message>
    <message>
        <source>Network Rule</source>
        <translation>Règle de réseau</translation>
    </message>
    <message>
        <source>New network rule</source>
        <translation>Nouvelle règle de réseau</translation>
    </message>
    <message>
        <source>Login Rule</source>
        <translation>Règle de session</translation>
    </message>
    <message>
        <source>New login rule</source>
        <translation>Nouvelle règle de session</translation>
    </message>
    <message>
        <source>Edit the rule (Return)</source>
        <translation>Modifier la règle (Entrée)</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Duplicate the rules (Ctrl+D)</source>
        <translation>Dupliquer les règles (Ctrl+D)</translation>
    </message>
    <message>
        <source>Delete the rules (Delete)</source>
        <translation>Supprimer les règles (Suppr)</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Ouverture de session</translation>
    </message>
    <message>
        <source>No name</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>Saved Items</source>
        <translation>Éléments enregistrés</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>Ouvrir la page</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Show it in the software center, or in the browser</source>
        <translation>L’afficher dans la logithèque ou dans le navigateur</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>Rechercher de nouvelles versions</translation>
    </message>
    <message>
        <source>Open a new version&apos;s page</source>
        <translation>Ouvrir la page d’une nouvelle version</translation>
    </message>
    <message>
        <source>This copy of Quillon does not look for new versions.</source>
        <translation>Cette copie de Quillon ne recherche pas de nouvelles versions.</translation>
    </message>
    <message>
        <source>How often</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>At once, in the software center or the browser. Quillon itself downloads and installs nothing.</source>
        <translation>Aussitôt, dans la logithèque ou le navigateur. Quillon lui-même ne télécharge ni n’installe rien.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Only while Quillon checks by itself</source>
        <translation>Seulement quand Quillon recherche de lui-même</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favori</translation>
    </message>
    <message>
        <source>Pause or Resume Timer</source>
        <translation>Suspendre ou reprendre le minuteur</translation>
    </message>
    <message>
        <source>Open the preferences where the list of vendors is downloaded</source>
        <translation>Ouvrir les préférences où se télécharge la liste des fabricants</translation>
    </message>
    <message>
        <source>&amp;Vendor</source>
        <translation>&amp;Fabricant</translation>
    </message>
    <message>
        <source>Vendor of random addresses</source>
        <translation>Fabricant des adresses aléatoires</translation>
    </message>
    <message>
        <source>Type the beginning of a name, then choose from the list</source>
        <translation>Saisir le début d’un nom, puis choisir dans la liste</translation>
    </message>
    <message>
        <source>Hide vendors</source>
        <translation>Masquer les fabricants</translation>
    </message>
    <message>
        <source>Show vendors</source>
        <translation>Afficher les fabricants</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Bring back the vendors from before the last update</source>
        <translation>Reprendre les fabricants d’avant la dernière mise à jour</translation>
    </message>
    <message>
        <source>The vendors from before the last update are being brought back</source>
        <translation>Les fabricants d’avant la dernière mise à jour sont en cours de rétablissement</translation>
    </message>
    <message>
        <source>Not while the database is being updated</source>
        <translation>Pas pendant la mise à jour de la base</translation>
    </message>
    <message>
        <source>There are no vendors from before an update</source>
        <translation>Il n’y a pas de fabricants d’avant une mise à jour</translation>
    </message>
    <message>
        <source>Not while the vendors from before are being brought back</source>
        <translation>Pas pendant le rétablissement des fabricants précédents</translation>
    </message>
    <message>
        <source>Restore previous</source>
        <translation>Rétablir les précédents</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>Avancement du téléchargement</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Fabricants</translation>
    </message>
    <message>
        <source>Signal and noise are not known</source>
        <translation>Signal et bruit inconnus</translation>
    </message>
    <message>
        <source>Signal %@</source>
        <translation>Signal %@</translation>
    </message>
    <message>
        <source>Noise %@</source>
        <translation>Bruit %@</translation>
    </message>
    <message>
        <source>Signal %@, noise %@</source>
        <translation>Signal %@, bruit %@</translation>
    </message>
    <message>
        <source>Signal and noise over the last five minutes</source>
        <translation>Signal et bruit des cinq dernières minutes</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutes</translation>
    </message>
    <message>
        <source>What to search</source>
        <translation>Où rechercher</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>&amp;Randomize</source>
        <translation>&amp;Rendre aléatoire</translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation>A&amp;dresse</translation>
    </message>
    <message>
        <source>The address in use is not the hardware address</source>
        <translation>L’adresse utilisée n’est pas l’adresse matérielle</translation>
    </message>
    <message>
        <source>Apply address</source>
        <translation>Appliquer l’adresse</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Application…</translation>
    </message>
    <message>
        <source>Changed: the address in use is not the hardware address</source>
        <translation>Modifiée&#xa0;: l’adresse utilisée n’est pas l’adresse matérielle</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits. Return applies the address.</source>
        <translation>Douze chiffres hexadécimaux. Entrée applique l’adresse.</translation>
    </message>
    <message>
        <source>Gives the interface the address in the field</source>
        <translation>Donne à l’interface l’adresse du champ</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits, with or without colons. Return applies the address.</source>
        <translation>Douze chiffres hexadécimaux, avec ou sans deux-points. Entrée applique l’adresse.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The address the device was made with.</source>
        <translation>L’adresse avec laquelle le périphérique a été fabriqué.</translation>
    </message>
    <message>
        <source>Restore hardware address</source>
        <translation>Rétablir l’adresse matérielle</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>Rétablissement…</translation>
    </message>
    <message>
        <source>Gives the interface the address back that it was made with</source>
        <translation>Redonne à l’interface l’adresse avec laquelle elle a été fabriquée</translation>
    </message>
    <message>
        <source>Hardware address</source>
        <translation>Adresse matérielle</translation>
    </message>
    <message>
        <source>Link active</source>
        <translation>Lien actif</translation>
    </message>
    <message>
        <source>Link inactive</source>
        <translation>Lien inactif</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>Adresse IPv4</translation>
    </message>
    <message>
        <source>The network interface whose address is shown and changed</source>
        <translation>L’interface réseau dont l’adresse est affichée et modifiée</translation>
    </message>
    <message>
        <source>What is the helper?</source>
        <translation>Qu’est-ce que l’outil auxiliaire&#x202f;?</translation>
    </message>
    <message>
        <source>About the helper</source>
        <translation>À propos de l’outil auxiliaire</translation>
    </message>
    <message>
        <source>Helper hint</source>
        <translation>Note sur l’outil auxiliaire</translation>
    </message>
    <message>
        <source>What is new is in Preferences › Updates.</source>
        <translation>Les nouveautés sont dans Préférences › Mises à jour.</translation>
    </message>
    <message>
        <source>Only a random address has a vendor</source>
        <translation>Seule une adresse aléatoire a un fabricant</translation>
    </message>
    <message>
        <source>No interface is selected: there is none to choose a vendor for</source>
        <translation>Aucune interface n’est sélectionnée pour laquelle choisir un fabricant</translation>
    </message>
    <message numerus="yes">
        <source>%@ (added %@ new Identifiers)</source>
        <translation>
            <numerusform>%@ (%@ nouvel identifiant)</numerusform>
            <numerusform>%@ (%@ nouveaux identifiants)</numerusform>
        </translation>
    </message>
    <message>
        <source>Getting Vendor infomation...</source>
        <translation>Recherche du fabricant...</translation>
    </message>
    <message>
        <source>No Vendor Information available...</source>
        <translation>Aucune information sur le fabricant...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records exported</source>
        <translation>
            <numerusform>%Ln entrée exportée</numerusform>
            <numerusform>%Ln entrées exportées</numerusform>
        </translation>
    </message>
    <message>
        <source>Sign in to the account first.</source>
        <translation>Se connecter d’abord au compte.</translation>
    </message>
    <message>
        <source>Enter the current passphrase.</source>
        <translation>Saisir la phrase secrète actuelle.</translation>
    </message>
    <message>
        <source>Enter a new passphrase.</source>
        <translation>Saisir une nouvelle phrase secrète.</translation>
    </message>
    <message>
        <source>The new passphrase is the current one.</source>
        <translation>La nouvelle phrase secrète est la même que l’actuelle.</translation>
    </message>
    <message>
        <source>Another computer has just changed the key file. Try again with the passphrase that holds now.</source>
        <translation>Un autre ordinateur vient de modifier le fichier de clé. Réessayer avec la phrase secrète désormais valable.</translation>
    </message>
    <message>
        <source>The connection was lost. Either the new passphrase or the current one opens the account now.</source>
        <translation>La connexion a été perdue. Le compte s’ouvre maintenant avec la nouvelle phrase secrète ou avec la précédente.</translation>
    </message>
    <message>
        <source>Another computer has changed the passphrase at the same time. That one holds now.</source>
        <translation>Un autre ordinateur a modifié la phrase secrète en même temps. C’est la sienne qui vaut maintenant.</translation>
    </message>
    <message>
        <source>This is not the current passphrase.</source>
        <translation>Ce n’est pas la phrase secrète actuelle.</translation>
    </message>
    <message>
        <source>Another key is in the account: somebody has made it anew, or changed it. Nothing is synced until you sign in again.</source>
        <translation>Le compte contient une autre clé&#xa0;: quelqu’un l’a recréé ou modifié. Rien n’est synchronisé avant une nouvelle connexion.</translation>
    </message>
    <message>
        <source>Reading the account&apos;s key file…</source>
        <translation>Lecture du fichier de clé du compte…</translation>
    </message>
    <message>
        <source>Writing the account&apos;s key file…</source>
        <translation>Écriture du fichier de clé du compte…</translation>
    </message>
    <message>
        <source>The passphrase was changed. Your other computers stay signed in.</source>
        <translation>La phrase secrète a été modifiée. Les autres ordinateurs restent connectés.</translation>
    </message>
    <message>
        <source>What the network still sees</source>
        <translation>Ce que le réseau voit encore</translation>
    </message>
    <message>
        <source>What the network of %@ still sees</source>
        <translation>Ce que le réseau de %@ voit encore</translation>
    </message>
    <message>
        <source>No interface is selected.</source>
        <translation>Aucune interface n’est sélectionnée.</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Recherche…</translation>
    </message>
    <message>
        <source>Nothing but the address is known to tell who this is.</source>
        <translation>Hormis l’adresse, rien de connu ne révèle cet ordinateur.</translation>
    </message>
    <message>
        <source>Made from the current address</source>
        <translation>Formé à partir de l’adresse actuelle</translation>
    </message>
    <message>
        <source>Made from the hardware address</source>
        <translation>Formé à partir de l’adresse matérielle</translation>
    </message>
    <message>
        <source>Made from another address</source>
        <translation>Formé à partir d’une autre adresse</translation>
    </message>
    <message>
        <source>Made for this network</source>
        <translation>Formé pour ce réseau</translation>
    </message>
    <message>
        <source>Made for this computer</source>
        <translation>Formé pour cet ordinateur</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Changes with the address.</source>
        <translation>Change avec l’adresse.</translation>
    </message>
    <message>
        <source>Changes by itself after a time.</source>
        <translation>Change automatiquement après un certain temps.</translation>
    </message>
    <message>
        <source>Stays the same on this network.</source>
        <translation>Reste identique sur ce réseau.</translation>
    </message>
    <message>
        <source>Stays the same on every network.</source>
        <translation>Reste identique sur tous les réseaux.</translation>
    </message>
    <message>
        <source>Gives the hardware address away.</source>
        <translation>Révèle l’adresse matérielle.</translation>
    </message>
    <message>
        <source>Gives an earlier address, or that of another interface, away.</source>
        <translation>Révèle une adresse antérieure ou celle d’une autre interface.</translation>
    </message>
    <message>
        <source>Who sets it does not tell.</source>
        <translation>Le programme qui en décide n’en dit rien.</translation>
    </message>
    <message>
        <source>Whether it changes with the address is not known.</source>
        <translation>On ne sait pas si cela change avec l’adresse.</translation>
    </message>
    <message>
        <source>Kept across the change, since %@.</source>
        <translation>Identique malgré la modification, depuis %@.</translation>
    </message>
    <message>
        <source>To show less: %@</source>
        <translation>Pour en montrer moins&#xa0;: %@</translation>
    </message>
    <message>
        <source>To show less, in %@: %@</source>
        <translation>Pour en montrer moins, dans %@&#xa0;: %@</translation>
    </message>
    <message>
        <source>Name sent with DHCP</source>
        <translation>Nom envoyé par DHCP</translation>
    </message>
    <message>
        <source>DHCP client identifier</source>
        <translation>Identifiant client DHCP</translation>
    </message>
    <message>
        <source>DHCPv6 identifier (DUID)</source>
        <translation>Identifiant DHCPv6 (DUID)</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>Adresse IPv6</translation>
    </message>
    <message>
        <source>More IPv6 addresses</source>
        <translation>Autres adresses IPv6</translation>
    </message>
    <message>
        <source>Name told by mDNS</source>
        <translation>Nom annoncé par mDNS</translation>
    </message>
    <message>
        <source>Name told by LLMNR</source>
        <translation>Nom annoncé par LLMNR</translation>
    </message>
    <message>
        <source>Login name (802.1X)</source>
        <translation>Nom d’utilisateur (802.1X)</translation>
    </message>
    <message>
        <source>Change Passphrase…</source>
        <translation>Modifier la phrase…</translation>
    </message>
    <message>
        <source>Gives the account another passphrase, for all computers</source>
        <translation>Donne au compte une autre phrase secrète, pour tous les ordinateurs</translation>
    </message>
    <message>
        <source>Change Passphrase</source>
        <translation>Modifier la phrase secrète</translation>
    </message>
    <message>
        <source>From then on the account is opened by the new passphrase</source>
        <translation>La nouvelle phrase secrète ouvrira désormais le compte</translation>
    </message>
    <message>
        <source>Current passphrase</source>
        <translation>Phrase secrète actuelle</translation>
    </message>
    <message>
        <source>The one with which you signed in</source>
        <translation>Celle utilisée pour se connecter</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>Nouvelle phrase secrète</translation>
    </message>
    <message>
        <source>At least eight characters. Nobody can tell you later what you typed.</source>
        <translation>Au moins huit caractères. Personne ne pourra dire plus tard ce qui a été saisi.</translation>
    </message>
    <message>
        <source>Repeat new passphrase</source>
        <translation>Répéter la nouvelle phrase secrète</translation>
    </message>
    <message>
        <source>The same once more</source>
        <translation>La même, encore une fois</translation>
    </message>
    <message>
        <source>Your other computers stay signed in. Copies of the account that somebody has made before still open with the current passphrase.</source>
        <translation>Les autres ordinateurs restent connectés. Les copies du compte faites auparavant s’ouvrent toujours avec la phrase secrète actuelle.</translation>
    </message>
</context>
</TS>
