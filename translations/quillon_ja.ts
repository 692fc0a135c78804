<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Quillon</name>
    <message>
        <source>Unknown...</source>
        <translation>不明...</translation>
    </message>
    <message>
        <source>Another program is using the file.</source>
        <translation>ほかのプログラムがファイルを使用しています。</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>ディスクに空きがありません。</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>ディスクの読み書きができませんでした。</translation>
    </message>
    <message>
        <source>Rules and history could not be saved. They are kept while Quillon runs. %@</source>
        <translation>ルールと履歴を保存できませんでした。Quillon の実行中は保持されます。%@</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>The records were written by a newer version of Quillon</source>
        <translation>記録は新しいバージョンの Quillon で書かれています</translation>
    </message>
    <message>
        <source>They are left untouched; please install that version again to use them: %@</source>
        <translation>記録は変更されません。使用するには、そのバージョンを再度インストールしてください: %@</translation>
    </message>
    <message>
        <source>The records cannot be opened</source>
        <translation>記録を開けません</translation>
    </message>
    <message>
        <source>%@

Rules and history are in this file, which is left as it is: %@</source>
        <translation>%@

ルールと履歴は次のファイルにあり、変更されません: %@</translation>
    </message>
    <message>
        <source>Settings are damaged</source>
        <translation>設定が破損しています</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file was left as it was: %@</source>
        <translation>Quillon は把握している設定または既定値で続行します。破損したファイルは変更していません: %@</translation>
    </message>
    <message>
        <source>Settings were damaged</source>
        <translation>設定が破損していました</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file is kept: %@</source>
        <translation>Quillon は把握している設定または既定値で続行します。破損したファイルは残してあります: %@</translation>
    </message>
    <message>
        <source>Settings cannot be read</source>
        <translation>設定を読み込めません</translation>
    </message>
    <message>
        <source>Quillon uses its defaults and leaves the file alone: %@</source>
        <translation>Quillon は既定値を使い、ファイルを変更しません: %@</translation>
    </message>
    <message>
        <source>Settings cannot be saved</source>
        <translation>設定を保存できません</translation>
    </message>
    <message>
        <source>Changes last until Quillon quits. Please check the permissions of %@</source>
        <translation>変更は Quillon を終了するまで有効です。アクセス権を確認してください: %@</translation>
    </message>
    <message>
        <source>There is no room left on the disk. Changes last until Quillon quits: %@</source>
        <translation>ディスクに空きがありません。変更は Quillon を終了するまで有効です: %@</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>終了時に変更を保存できませんでした。それでも終了しますか?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>今終了すると、最後に保存できたとき以降の変更がすべて失われます</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>それでも終了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The account holds changes by a newer version of Quillon. Update it here to get them.</source>
        <translation>アカウントに、新しいバージョンの Quillon による変更があります。受け取るには、ここの Quillon を更新してください。</translation>
    </message>
    <message>
        <source>A file in the account is damaged, or somebody has changed it. It is left alone.</source>
        <translation>アカウントのファイルが破損しているか、誰かに変更されています。変更せずに残してあります。</translation>
    </message>
    <message>
        <source>The password of the account is not in the keyring. Sign in again.</source>
        <translation>アカウントのパスワードがキーリングにありません。再度サインインしてください。</translation>
    </message>
    <message>
        <source>What is to be synced could not be stored on this computer.</source>
        <translation>同期する内容をこのコンピューターに保存できませんでした。</translation>
    </message>
    <message>
        <source>This account is new. Repeat the passphrase.</source>
        <translation>このアカウントは新規です。パスフレーズをもう一度入力してください。</translation>
    </message>
    <message>
        <source>The two passphrases differ.</source>
        <translation>2 つのパスフレーズが異なります。</translation>
    </message>
    <message>
        <source>The passphrase is too short: it needs at least eight characters.</source>
        <translation>パスフレーズが短すぎます。8 文字以上必要です。</translation>
    </message>
    <message>
        <source>The account has another passphrase.</source>
        <translation>アカウントのパスフレーズと異なります。</translation>
    </message>
    <message>
        <source>The account&apos;s key file is damaged. Put back an older copy of it.</source>
        <translation>アカウントのキーファイルが破損しています。以前のコピーに戻してください。</translation>
    </message>
    <message>
        <source>The account was made by a newer version of Quillon.</source>
        <translation>このアカウントは新しいバージョンの Quillon で作成されています。</translation>
    </message>
    <message>
        <source>The account&apos;s key file is missing. A computer that is signed in puts it back when it syncs next.</source>
        <translation>アカウントのキーファイルがありません。サインイン済みのコンピューターが、次の同期時に復元します。</translation>
    </message>
    <message>
        <source>This computer has not enough free memory for that now.</source>
        <translation>現在、このコンピューターにはそのための空きメモリーがありません。</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Enter the server&apos;s address.</source>
        <translation>サーバーのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Enter a user name and a password.</source>
        <translation>ユーザー名とパスワードを入力してください。</translation>
    </message>
    <message>
        <source>Enter a passphrase.</source>
        <translation>パスフレーズを入力してください。</translation>
    </message>
    <message>
        <source>%@ did not let go of it</source>
        <translation>%@ がインターフェースを解放しませんでした</translation>
    </message>
    <message>
        <source>Only the session in front of this computer may change it</source>
        <translation>アドレスを変更できるのは、このコンピューターの前にいるセッションだけです</translation>
    </message>
    <message>
        <source>Please make sure you have installed the HelperTool</source>
        <translation>ヘルパーがインストールされていることを確認してください</translation>
    </message>
    <message>
        <source>%@ gives this network an Address of its own. Look for it in the network&apos;s settings</source>
        <translation>%@ がこのネットワークに独自のアドレスを割り当てています。ネットワークの設定を確認してください</translation>
    </message>
    <message>
        <source>Please make sure your Device is enabled</source>
        <translation>デバイスが有効になっていることを確認してください</translation>
    </message>
    <message>
        <source>%@ Address Changed</source>
        <translation>%@: アドレスを変更しました</translation>
    </message>
    <message>
        <source>Your new MAC Address is: %@</source>
        <translation>新しい MAC アドレス: %@</translation>
    </message>
    <message>
        <source>Please connect it again with the program that connects it</source>
        <translation>接続を管理しているプログラムで再接続してください</translation>
    </message>
    <message>
        <source>Please connect it again with %@</source>
        <translation>%@ で再接続してください</translation>
    </message>
    <message>
        <source>%@ is not connected again</source>
        <translation>%@ は再接続されていません</translation>
    </message>
    <message>
        <source>%@ keeps the IP Address of before</source>
        <translation>%@ は以前の IP アドレスのままです</translation>
    </message>
    <message>
        <source>%@ keeps an IPv6 Address made from the old one</source>
        <translation>%@ には古いアドレスから作られた IPv6 アドレスが残っています</translation>
    </message>
    <message>
        <source>%@ Address may be replaced</source>
        <translation>%@: アドレスが置き換えられる可能性があります</translation>
    </message>
    <message>
        <source>This session may not control %@. The new Address holds until the interface connects the next time</source>
        <translation>このセッションからは %@ を制御できません。新しいアドレスは、インターフェースが次に接続するまで有効です</translation>
    </message>
    <message>
        <source>The new Address and the old Address are identical</source>
        <translation>新しいアドレスと古いアドレスは同じです</translation>
    </message>
    <message>
        <source>%@ Address was replaced</source>
        <translation>%@: アドレスが置き換えられました</translation>
    </message>
    <message>
        <source>Another program keeps setting an Address of its own. Your rule acts again when you join a network</source>
        <translation>ほかのプログラムが独自のアドレスを設定し続けています。ルールは、次にネットワークに接続したときに再び働きます</translation>
    </message>
    <message>
        <source>%@ Address was not Changed</source>
        <translation>%@: アドレスを変更できませんでした</translation>
    </message>
    <message>
        <source>The interface does not say which address it has now.</source>
        <translation>インターフェースの現在のアドレスがわかりません。</translation>
    </message>
    <message>
        <source>Changed: this is the address in use now.</source>
        <translation>変更しました。これが現在のアドレスです。</translation>
    </message>
    <message>
        <source>Not changed: %@.</source>
        <translation>変更できませんでした: %@。</translation>
    </message>
    <message>
        <source>Not connected again: look at the address when it is.</source>
        <translation>再接続されていません。接続されたらアドレスを確認してください。</translation>
    </message>
    <message>
        <source>Changed, but to another address than you asked for.</source>
        <translation>変更されましたが、指定したアドレスではありません。</translation>
    </message>
    <message>
        <source>The address was not changed.</source>
        <translation>アドレスは変更されませんでした。</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>%@ now has %@ in place of %@.</source>
        <translation>%@ のアドレスは %@ になっています (設定したアドレス: %@)。</translation>
    </message>
    <message>
        <source>%@ owns this interface.</source>
        <translation>%@ がこのインターフェースを管理しています。</translation>
    </message>
    <message>
        <source>%@ shows another Address</source>
        <translation>%@ に別のアドレスが設定されています</translation>
    </message>
    <message>
        <source>Apply again</source>
        <translation>もう一度適用</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>受け入れる</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>これはファイルではありません。</translation>
    </message>
    <message>
        <source>Show window</source>
        <translation>ウィンドウを表示</translation>
    </message>
    <message>
        <source>Randomize address</source>
        <translation>アドレスをランダム化</translation>
    </message>
    <message>
        <source>Shortcut for “%@” not set</source>
        <translation>「%@」のショートカットを設定できません</translation>
    </message>
    <message>
        <source>A shortcut needs Ctrl, Alt or Meta and one more key.</source>
        <translation>ショートカットには Ctrl、Alt、Meta のいずれかと、もう 1 つのキーが必要です。</translation>
    </message>
    <message>
        <source>Another program uses this shortcut.</source>
        <translation>ほかのプログラムがこのショートカットを使用しています。</translation>
    </message>
    <message>
        <source>The desktop refused this shortcut.</source>
        <translation>デスクトップ環境がこのショートカットを受け付けませんでした。</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>このキーボードにそのキーはありません。</translation>
    </message>
    <message>
        <source>This desktop does not let programs set global shortcuts.</source>
        <translation>このデスクトップ環境では、プログラムはグローバルショートカットを設定できません。</translation>
    </message>
    <message>
        <source>Quillon requires Location Services to determine your current network details</source>
        <translation>現在のネットワークの詳細を調べるには、位置情報サービスが必要です</translation>
    </message>
    <message>
        <source>You need to give Quillon access in System Settings &gt; Privacy &amp; Security &gt; Privacy &gt; Location Services</source>
        <translation>Quillon へのアクセスは次の場所で許可します: システム設定 &gt; プライバシーとセキュリティ &gt; プライバシー &gt; 位置情報サービス</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Random Address</source>
        <translation>ランダムなアドレス</translation>
    </message>
    <message>
        <source>Not currently connected...</source>
        <translation>現在接続していません...</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>WPA パーソナル</translation>
    </message>
    <message>
        <source>WPA Personal Mixed</source>
        <translation>WPA パーソナル (混在)</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>WPA2 パーソナル</translation>
    </message>
    <message>
        <source>Personal</source>
        <translation>パーソナル</translation>
    </message>
    <message>
        <source>Dynamic WEP</source>
        <translation>動的 WEP</translation>
    </message>
    <message>
        <source>WPA Enterprise</source>
        <translation>WPA エンタープライズ</translation>
    </message>
    <message>
        <source>WPA Enterprise Mixed</source>
        <translation>WPA エンタープライズ (混在)</translation>
    </message>
    <message>
        <source>WPA2 Enterprise</source>
        <translation>WPA2 エンタープライズ</translation>
    </message>
    <message>
        <source>Enterprise</source>
        <translation>エンタープライズ</translation>
    </message>
    <message>
        <source>This account can be used.</source>
        <translation>このアカウントは使用できます。</translation>
    </message>
    <message>
        <source>This account can be used. Set it up on one computer after the other: its server does not notice when two write at the same moment.</source>
        <translation>このアカウントは使用できます。コンピューターは 1 台ずつ設定してください。サーバーは、2 台が同時に書き込んでも気付きません。</translation>
    </message>
    <message>
        <source>The server did not accept this name and password.</source>
        <translation>サーバーがこのユーザー名とパスワードを受け付けませんでした。</translation>
    </message>
    <message>
        <source>This folder is not there at the moment.</source>
        <translation>このフォルダーは現在ありません。</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>サーバーに接続できません。</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted.</source>
        <translation>サーバーの証明書は信頼されていません。</translation>
    </message>
    <message>
        <source>This folder cannot be written.</source>
        <translation>このフォルダーに書き込めません。</translation>
    </message>
    <message>
        <source>There is no space left in this folder.</source>
        <translation>このフォルダーに空きがありません。</translation>
    </message>
    <message>
        <source>There is no space left in this account.</source>
        <translation>このアカウントに空きがありません。</translation>
    </message>
    <message>
        <source>The account does not take files of this size.</source>
        <translation>このアカウントは、この大きさのファイルを受け付けません。</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>これはフォルダーではありません。</translation>
    </message>
    <message>
        <source>The server shows no files at this address. If it asks for a second factor, use an app password.</source>
        <translation>サーバーのこのアドレスにファイルがありません。2 段階認証を求められる場合は、アプリパスワードを使用してください。</translation>
    </message>
    <message>
        <source>The account did not work as expected. Try again later.</source>
        <translation>アカウントが想定どおりに動作しませんでした。あとでもう一度試してください。</translation>
    </message>
    <message>
        <source>Starts Quillon when you log in</source>
        <translation>ログイン時に Quillon を起動します</translation>
    </message>
    <message>
        <source>There is no keyring in this session to keep the password in.</source>
        <translation>このセッションには、パスワードを保管するキーリングがありません。</translation>
    </message>
    <message>
        <source>The keyring was not unlocked.</source>
        <translation>キーリングのロックが解除されませんでした。</translation>
    </message>
    <message>
        <source>The keyring did not answer.</source>
        <translation>キーリングが応答しませんでした。</translation>
    </message>
    <message>
        <source>Quillon is not in the status bar</source>
        <translation>Quillon はステータスバーにありません</translation>
    </message>
    <message>
        <source>This desktop shows no status items. Minimize the window to keep Quillon running: closing it ends Quillon.</source>
        <translation>このデスクトップ環境にはステータスアイコンが表示されません。Quillon を実行し続けるには、ウィンドウを最小化してください。閉じると Quillon は終了します。</translation>
    </message>
    <message>
        <source>Signed in to the folder %@</source>
        <translation>フォルダー %@ にサインインしています</translation>
    </message>
    <message>
        <source>Signed in as %@ at %@</source>
        <translation>%@ として %@ にサインインしています</translation>
    </message>
    <message>
        <source>Signed out. Rules, history and settings stay on this computer.</source>
        <translation>サインアウトしました。ルール、履歴、設定はこのコンピューターに残ります。</translation>
    </message>
    <message>
        <source>Looking for your files…</source>
        <translation>ファイルを探しています…</translation>
    </message>
    <message>
        <source>Trying what the account can do…</source>
        <translation>アカウントの機能を確認しています…</translation>
    </message>
    <message>
        <source>Opening the account with the passphrase…</source>
        <translation>パスフレーズでアカウントを開いています…</translation>
    </message>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>キーリングを待っています…</translation>
    </message>
    <message>
        <source>Write the whole path of the folder.</source>
        <translation>フォルダーの完全なパスを入力してください。</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>サーバーのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Enter an app password.</source>
        <translation>アプリパスワードを入力してください。</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>2 つのパスフレーズが一致しません。</translation>
    </message>
    <message>
        <source>The record has been deleted.</source>
        <translation>記録は削除されています。</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>エクスポート中…</translation>
    </message>
    <message>
        <source>The records could not be read.</source>
        <translation>記録を読み込めませんでした。</translation>
    </message>
    <message>
        <source>The file could not be written. %@</source>
        <translation>ファイルに書き込めませんでした。%@</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>検索中…</translation>
    </message>
    <message>
        <source>%@: %@</source>
        <translation>%@: %@</translation>
    </message>
    <message>
        <source>Nothing contains “%@”. Upper and lower case matter.</source>
        <translation>「%@」を含むものはありません。大文字と小文字は区別されます。</translation>
    </message>
    <message>
        <source>Every address change is listed here.</source>
        <translation>アドレスの変更はすべてここに表示されます。</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>削除中…</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>保存中…</translation>
    </message>
    <message>
        <source>The records could not be deleted.</source>
        <translation>記録を削除できませんでした。</translation>
    </message>
    <message>
        <source>So many records at once cannot be brought back.</source>
        <translation>一度にこれほど多くの記録を削除すると、元に戻せません。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Nothing in the history that is not saved.</source>
        <translation>履歴に未保存のものはありません。</translation>
    </message>
    <message>
        <source>%@ and %@ added.</source>
        <translation>%@と%@を追加しました。</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>履歴を読み込めません。</translation>
    </message>
    <message>
        <source>%@ These are the newest %@; import again for more.</source>
        <translation>%@ これは最新の %@ 件です。続きは再度インポートしてください。</translation>
    </message>
    <message>
        <source>Today %@</source>
        <translation>今日 %@</translation>
    </message>
    <message>
        <source>Yesterday %@</source>
        <translation>昨日 %@</translation>
    </message>
    <message>
        <source>MMM d, yyyy</source>
        <translation>yyyy/M/d</translation>
    </message>
    <message>
        <source>%@ %@</source>
        <translation>%@ %@</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>インターフェース</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Search All Fields</source>
        <translation>すべての項目を検索</translation>
    </message>
    <message>
        <source>Search Devices</source>
        <translation>デバイスを検索</translation>
    </message>
    <message>
        <source>Search Interfaces</source>
        <translation>インターフェースを検索</translation>
    </message>
    <message>
        <source>Search Addresses</source>
        <translation>アドレスを検索</translation>
    </message>
    <message>
        <source>Search Network Names</source>
        <translation>ネットワーク名を検索</translation>
    </message>
    <message>
        <source>Search BSSIDs</source>
        <translation>BSSID を検索</translation>
    </message>
    <message>
        <source>Search Notes</source>
        <translation>メモを検索</translation>
    </message>
    <message>
        <source>%@ was given %@.</source>
        <translation>%@ に %@ が設定されました。</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@.</source>
        <translation>%@ (%@) に %@ が設定されました。</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@ on %@.</source>
        <translation>%@ (%@) に %@ が設定されました (ネットワーク: %@)。</translation>
    </message>
    <message>
        <source>New Network Rule…</source>
        <translation>新しいネットワークルール…</translation>
    </message>
    <message>
        <source>New Login Rule…</source>
        <translation>新しいログインルール…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>%@Hardware Address · %@</source>
        <translation>%@ハードウェアアドレス · %@</translation>
    </message>
    <message>
        <source>%@Current Address · %@</source>
        <translation>%@現在のアドレス · %@</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>ランダム化</translation>
    </message>
    <message>
        <source>%@Resume Timer</source>
        <translation>%@タイマーを再開</translation>
    </message>
    <message>
        <source>%@Pause Timer</source>
        <translation>%@タイマーを一時停止</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>このバージョンにはまだありません</translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation>Quillon を開く</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>Saved Networks and Addresses</source>
        <translation>保存したネットワークとアドレス</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>About Quillon</source>
        <translation>Quillon について</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>Quillon を終了</translation>
    </message>
    <message>
        <source>Looking it up…</source>
        <translation>問い合わせ中…</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>Look-up is off</source>
        <translation>問い合わせオフ</translation>
    </message>
    <message>
        <source>A public service is being asked under which address it sees you.</source>
        <translation>公開サービスに、そこから見えるアドレスを問い合わせています。</translation>
    </message>
    <message>
        <source>The public service did not answer. This is what it said before. The button asks again.</source>
        <translation>公開サービスが応答しませんでした。表示しているのは前回の応答です。ボタンで再度問い合わせます。</translation>
    </message>
    <message>
        <source>The public service did not answer with an address. The button asks again.</source>
        <translation>公開サービスの応答にアドレスがありませんでした。ボタンで再度問い合わせます。</translation>
    </message>
    <message>
        <source>It is not looked up by itself. The button asks a public service once.</source>
        <translation>自動では問い合わせません。ボタンで公開サービスに一度問い合わせます。</translation>
    </message>
    <message>
        <source>Remove Network from Favorites</source>
        <translation>ネットワークをお気に入りから削除</translation>
    </message>
    <message>
        <source>Add Network to Favorites</source>
        <translation>ネットワークをお気に入りに追加</translation>
    </message>
    <message>
        <source>Remove Address from Favorites</source>
        <translation>アドレスをお気に入りから削除</translation>
    </message>
    <message>
        <source>Add Address to Favorites</source>
        <translation>アドレスをお気に入りに追加</translation>
    </message>
    <message>
        <source>Network name</source>
        <translation>ネットワーク名</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>セキュリティ</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>ノイズ</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>MCS</source>
        <translation>MCS</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国</translation>
    </message>
    <message>
        <source>Wi-Fi is switched off.</source>
        <translation>Wi-Fi はオフです。</translation>
    </message>
    <message>
        <source>Write it with colons: %@.</source>
        <translation>コロンを付けて入力してください: %@。</translation>
    </message>
    <message>
        <source>This is not a MAC address.</source>
        <translation>MAC アドレスではありません。</translation>
    </message>
    <message>
        <source>A MAC address has 12 hexadecimal digits.</source>
        <translation>MAC アドレスは 16 進数 12 桁です。</translation>
    </message>
    <message>
        <source>%@ is saved already.</source>
        <translation>%@ はすでに保存されています。</translation>
    </message>
    <message>
        <source>A network needs its name, too.</source>
        <translation>ネットワークには名前も必要です。</translation>
    </message>
    <message>
        <source>Group address: most adapters refuse it.</source>
        <translation>グループアドレスです。ほとんどのアダプターで使用できません。</translation>
    </message>
    <message>
        <source>Favorite removed</source>
        <translation>お気に入りを削除しました</translation>
    </message>
    <message>
        <source>Configure %@</source>
        <translation>%@ を設定</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>アクティブ</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Changing…</source>
        <translation>変更中…</translation>
    </message>
    <message>
        <source>The address is now %@.</source>
        <translation>現在のアドレスは %@ です。</translation>
    </message>
    <message>
        <source>The address is being changed</source>
        <translation>アドレスを変更しています</translation>
    </message>
    <message>
        <source>The interface is not there</source>
        <translation>インターフェースが見つかりません</translation>
    </message>
    <message>
        <source>The helper tool is not installed</source>
        <translation>ヘルパーがインストールされていません</translation>
    </message>
    <message>
        <source>The interface has no factory address that is known</source>
        <translation>インターフェースの出荷時のアドレスが不明です</translation>
    </message>
    <message>
        <source>The interface has its factory address</source>
        <translation>インターフェースは出荷時のアドレスを使用しています</translation>
    </message>
    <message>
        <source>Gives the interface a random, locally administered address</source>
        <translation>ローカル管理のランダムなアドレスをインターフェースに設定します</translation>
    </message>
    <message>
        <source>Gives the interface its hardware address again</source>
        <translation>インターフェースをハードウェアアドレスに戻します</translation>
    </message>
    <message>
        <source>Read the License</source>
        <translation>ライセンスを読む</translation>
    </message>
    <message>
        <source>The License on the Web</source>
        <translation>ウェブ上のライセンス</translation>
    </message>
    <message>
        <source>Where Vendors Are Registered</source>
        <translation>ベンダーの登録機関</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>バージョン %@</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or any later version. It comes without any warranty.</source>
        <translation>GNU General Public License バージョン 3 またはそれ以降のバージョンに基づくフリーソフトウェアです。一切の保証はありません。</translation>
    </message>
    <message>
        <source>No program here opens %@</source>
        <translation>%@ を開くプログラムがありません</translation>
    </message>
    <message>
        <source>Helper: installed, version %@</source>
        <translation>ヘルパー: インストール済み、バージョン %@</translation>
    </message>
    <message>
        <source>Helper: not installed</source>
        <translation>ヘルパー: 未インストール</translation>
    </message>
    <message>
        <source>Helper: outdated, version %@</source>
        <translation>ヘルパー: 旧バージョン、バージョン %@</translation>
    </message>
    <message>
        <source>No account yet: there is nowhere to sync with.</source>
        <translation>アカウントがまだないため、同期先がありません。</translation>
    </message>
    <message>
        <source>Not while this desktop shows no status items.</source>
        <translation>デスクトップ環境にステータスアイコンが表示されない間は使用できません。</translation>
    </message>
    <message>
        <source>Only with the icon in the status bar.</source>
        <translation>ステータスバーにアイコンがあるときのみ。</translation>
    </message>
    <message>
        <source>no program that is known</source>
        <translation>不明なプログラム</translation>
    </message>
    <message>
        <source>This desktop does not start programs at login by itself.</source>
        <translation>このデスクトップ環境は、ログイン時にプログラムを自動的に起動しません。</translation>
    </message>
    <message>
        <source>Whether this desktop starts programs at login cannot be told from here.</source>
        <translation>このデスクトップ環境がログイン時にプログラムを起動するかどうかは、ここからはわかりません。</translation>
    </message>
    <message>
        <source>The program that starts Quillon at login is not installed.</source>
        <translation>ログイン時に Quillon を起動するプログラムがインストールされていません。</translation>
    </message>
    <message>
        <source>The autostart entry is missing or cannot be written. Switch this off and on again to have it made anew.</source>
        <translation>自動起動エントリーがないか、書き込めません。作り直すには、これを一度オフにしてからオンにしてください。</translation>
    </message>
    <message>
        <source>There still is an autostart entry. Switch this on and off again to have it taken out.</source>
        <translation>自動起動エントリーがまだあります。削除するには、これを一度オンにしてからオフにしてください。</translation>
    </message>
    <message>
        <source>The desktop has Quillon switched off in its own list. Switch this off and on again to have it started.</source>
        <translation>デスクトップ環境の一覧で Quillon がオフになっています。起動するには、これを一度オフにしてからオンにしてください。</translation>
    </message>
    <message>
        <source>The autostart entry is for other desktops only. Switch this off and on again to have it act here.</source>
        <translation>自動起動エントリーはほかのデスクトップ環境専用です。ここでも有効にするには、これを一度オフにしてからオンにしてください。</translation>
    </message>
    <message>
        <source>There is an autostart entry of your own: it is left as it is.</source>
        <translation>ユーザー自身の自動起動エントリーがあります。変更しません。</translation>
    </message>
    <message>
        <source>GeneralPreferences_en</source>
        <translation>GeneralPreferences_en</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>AdvancedPreferences_en</source>
        <translation>AdvancedPreferences_en</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>DisplayPreferences_en</source>
        <translation>DisplayPreferences_en</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>VendorPreferences_en</source>
        <translation>VendorPreferences_en</translation>
    </message>
    <message>
        <source>Vendor Data</source>
        <translation>ベンダーデータ</translation>
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
        <translation>更新</translation>
    </message>
    <message>
        <source>AboutPreferences_en</source>
        <translation>AboutPreferences_en</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Type a shortcut</source>
        <translation>ショートカットを入力</translation>
    </message>
    <message>
        <source>Escape keeps the shortcut of before, Backspace clears it.</source>
        <translation>Escape で以前のショートカットを保持し、Backspace で消去します。</translation>
    </message>
    <message>
        <source>This key cannot be part of a shortcut.</source>
        <translation>このキーはショートカットに使用できません。</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>ショートカットを記録</translation>
    </message>
    <message>
        <source>The desktop has the last word: its settings show the keys that act.</source>
        <translation>最終的に決めるのはデスクトップ環境です。有効なキーはその設定に表示されます。</translation>
    </message>
    <message>
        <source>“%@” uses this shortcut.</source>
        <translation>「%@」がこのショートカットを使用しています。</translation>
    </message>
    <message>
        <source>Any Network</source>
        <translation>すべてのネットワーク</translation>
    </message>
    <message>
        <source>An Unknown Network</source>
        <translation>未知のネットワーク</translation>
    </message>
    <message>
        <source>No interface here can be changed.</source>
        <translation>変更できるインターフェースがありません。</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not here any more.</source>
        <translation>このルールの対象の %@ はもうここにありません。</translation>
    </message>
    <message>
        <source>Login rules do not act on Wi-Fi.</source>
        <translation>ログインルールは Wi-Fi では働きません。</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not saved any more.</source>
        <translation>このルールの対象の %@ はもう保存されていません。</translation>
    </message>
    <message>
        <source>%@ is not saved: press its heart first.</source>
        <translation>%@ は保存されていません。先にハートを押してください。</translation>
    </message>
    <message>
        <source>“%@” is no vendor: choose one from the list.</source>
        <translation>「%@」はベンダーではありません。リストから選択してください。</translation>
    </message>
    <message>
        <source>Repeated addresses have the vendor of the main window, not this one.</source>
        <translation>繰り返し変更されるアドレスには、このベンダーではなくメインウィンドウのベンダーが使われます。</translation>
    </message>
    <message>
        <source>Save or cancel this rule before you begin another one.</source>
        <translation>別のルールを始める前に、このルールを保存するかキャンセルしてください。</translation>
    </message>
    <message>
        <source>The rule that was open is not there any more.</source>
        <translation>開いていたルールはもうありません。</translation>
    </message>
    <message>
        <source>Another rule for this interface and network was switched off: only one can be on.</source>
        <translation>このインターフェースとネットワークの別のルールをオフにしました。オンにできるのは 1 つだけです。</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>毎日</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>毎月</translation>
    </message>
    <message>
        <source>The internet cannot be reached now.</source>
        <translation>現在、インターネットに接続できません。</translation>
    </message>
    <message>
        <source>The place to look at is not an https address.</source>
        <translation>確認先が https アドレスではありません。</translation>
    </message>
    <message>
        <source>The list of versions could not be fetched.</source>
        <translation>バージョンの一覧を取得できませんでした。</translation>
    </message>
    <message>
        <source>What came is not from the authors of Quillon and was not used.</source>
        <translation>取得したものは Quillon の作者によるものではないため、使用しませんでした。</translation>
    </message>
    <message>
        <source>The list of versions that came is out of date and was not used.</source>
        <translation>取得したバージョンの一覧は古いため、使用しませんでした。</translation>
    </message>
    <message>
        <source>Your system&apos;s software updates bring new versions.</source>
        <translation>新しいバージョンはシステムのソフトウェア更新で提供されます。</translation>
    </message>
    <message>
        <source>It was built without a list of versions to ask for. Nothing is asked, whatever is chosen here.</source>
        <translation>問い合わせるバージョンの一覧なしでビルドされています。ここで何を選んでも問い合わせは行いません。</translation>
    </message>
    <message>
        <source>Last checked: %@</source>
        <translation>最終確認: %@</translation>
    </message>
    <message>
        <source>Not checked yet.</source>
        <translation>まだ確認していません。</translation>
    </message>
    <message>
        <source>Quillon %@ is available</source>
        <translation>Quillon %@ が利用可能です</translation>
    </message>
    <message>
        <source>This is version %@.</source>
        <translation>現在のバージョンは %@ です。</translation>
    </message>
    <message>
        <source>Quillon %@ is the newest version.</source>
        <translation>Quillon %@ は最新のバージョンです。</translation>
    </message>
    <message>
        <source>No browser could be opened.</source>
        <translation>ブラウザーを開けませんでした。</translation>
    </message>
    <message>
        <source>The list of vendors is missing.</source>
        <translation>ベンダーのリストがありません。</translation>
    </message>
    <message>
        <source>No vendor begins with “%@”.</source>
        <translation>「%@」で始まるベンダーはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%@ Vendor Identifiers</source>
        <translation>
            <numerusform>ベンダー識別子: %@ 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Update database</source>
        <translation>データベースを更新</translation>
    </message>
    <message>
        <source>Getting download information...</source>
        <translation>ダウンロード情報を取得中...</translation>
    </message>
    <message>
        <source>Updating Vendor Identifier count...</source>
        <translation>ベンダー識別子の数を更新中...</translation>
    </message>
    <message>
        <source>Cancel download...</source>
        <translation>ダウンロードをキャンセル...</translation>
    </message>
    <message>
        <source>Downloading... %@MB</source>
        <translation>ダウンロード中... %@ MB</translation>
    </message>
    <message>
        <source>Downloading... %@% of %@MB</source>
        <translation>ダウンロード中... %@% / %@ MB</translation>
    </message>
    <message>
        <source>Download cancelled...</source>
        <translation>ダウンロードをキャンセルしました...</translation>
    </message>
    <message>
        <source>Processing data...</source>
        <translation>データを処理中...</translation>
    </message>
    <message>
        <source>Parsing file failed...</source>
        <translation>ファイルを解析できませんでした...</translation>
    </message>
    <message>
        <source>Last Updated: %@</source>
        <translation>最終更新: %@</translation>
    </message>
    <message>
        <source>Restoring the previous database...</source>
        <translation>以前のデータベースを復元中...</translation>
    </message>
    <message>
        <source>Restoring failed...</source>
        <translation>復元できませんでした...</translation>
    </message>
    <message>
        <source>Getting Vendor Identifier count...</source>
        <translation>ベンダー識別子の数を取得中...</translation>
    </message>
    <message>
        <source>This is the address in use. Type or drop another to change it.</source>
        <translation>使用中のアドレスです。変更するには入力またはドロップします。</translation>
    </message>
    <message>
        <source>Press Return or Apply to use this address.</source>
        <translation>Return キーか「適用」でこのアドレスを使用します。</translation>
    </message>
    <message>
        <source>Install the helper to change the address.</source>
        <translation>アドレスを変更するにはヘルパーをインストールしてください。</translation>
    </message>
    <message>
        <source>This interface is not there: select another.</source>
        <translation>このインターフェースはありません。別のものを選択してください。</translation>
    </message>
    <message>
        <source>No interface is selected: there is none whose address can be changed</source>
        <translation>インターフェースが選択されていないため、アドレスを変更できません</translation>
    </message>
    <message>
        <source>The selected interface is not there</source>
        <translation>選択したインターフェースが見つかりません</translation>
    </message>
    <message>
        <source>The field holds no other address to apply</source>
        <translation>フィールドに適用する別のアドレスがありません</translation>
    </message>
    <message>
        <source>Changing an address needs administrator rights, which Quillon itself never has. A small helper makes the change and nothing else. Installing it asks for an administrator&apos;s password once; Preferences › Advanced removes it again.</source>
        <translation>アドレスの変更には管理者権限が必要ですが、Quillon 自体は管理者権限を持ちません。小さなヘルパーが変更だけを行います。インストール時に一度だけ管理者のパスワードを求められます。「設定」›「詳細」で削除できます。</translation>
    </message>
    <message>
        <source>(paused)</source>
        <translation>(一時停止中)</translation>
    </message>
    <message>
        <source>...changing MAC Address in %@</source>
        <translation>...MAC アドレスの変更まで %@</translation>
    </message>
    <message>
        <source>Quillon Timer started</source>
        <translation>Quillon のタイマーを開始しました</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made first.</source>
        <translation>代わりに「%@」が適用されます。先に作成されたためです。</translation>
    </message>
    <message>
        <source>“%@” is in force instead: this network is not saved.</source>
        <translation>代わりに「%@」が適用されます。このネットワークは保存されていません。</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made for this network.</source>
        <translation>代わりに「%@」が適用されます。このネットワーク用に作成されています。</translation>
    </message>
    <message>
        <source>Not in force: %@ is on no network.</source>
        <translation>適用されません: %@ はネットワークに接続していません。</translation>
    </message>
    <message>
        <source>Not in force: the network in use is saved.</source>
        <translation>適用されません: 使用中のネットワークは保存されています。</translation>
    </message>
    <message>
        <source>Not in force: another network is in use.</source>
        <translation>適用されません: 別のネットワークを使用しています。</translation>
    </message>
    <message>
        <source>Not in force: it is switched off.</source>
        <translation>適用されません: オフになっています。</translation>
    </message>
    <message>
        <source>Not in force: %@ is not here.</source>
        <translation>適用されません: %@ がありません。</translation>
    </message>
    <message>
        <source>Not in force: login rules do not act on Wi-Fi.</source>
        <translation>適用されません: ログインルールは Wi-Fi では働きません。</translation>
    </message>
    <message>
        <source>In force: it acts when Quillon is started at login.</source>
        <translation>適用されます: ログイン時に Quillon が起動すると働きます。</translation>
    </message>
    <message>
        <source>In force now.</source>
        <translation>現在適用されています。</translation>
    </message>
    <message>
        <source>In force, but %@ is not connected.</source>
        <translation>適用されますが、%@ は接続していません。</translation>
    </message>
    <message>
        <source>Not in force now.</source>
        <translation>現在は適用されていません。</translation>
    </message>
    <message>
        <source>On %@, leave %@ as it is.</source>
        <translation>%@ では、%@ をそのままにします。</translation>
    </message>
    <message>
        <source>On any network, leave %@ as it is.</source>
        <translation>どのネットワークでも、%@ をそのままにします。</translation>
    </message>
    <message>
        <source>On an unknown network, leave %@ as it is.</source>
        <translation>未知のネットワークでは、%@ をそのままにします。</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address once.</source>
        <translation>%@ では、%@ にランダムなアドレスを 1 回設定します。</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address once.</source>
        <translation>どのネットワークでも、%@ にランダムなアドレスを 1 回設定します。</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address once.</source>
        <translation>未知のネットワークでは、%@ にランダムなアドレスを 1 回設定します。</translation>
    </message>
    <message>
        <source>At login, give %@ a random address.</source>
        <translation>ログイン時に、%@ にランダムなアドレスを設定します。</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address by %@ once.</source>
        <translation>%@ では、%@ に %@ のランダムなアドレスを 1 回設定します。</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address by %@ once.</source>
        <translation>どのネットワークでも、%@ に %@ のランダムなアドレスを 1 回設定します。</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address by %@ once.</source>
        <translation>未知のネットワークでは、%@ に %@ のランダムなアドレスを 1 回設定します。</translation>
    </message>
    <message>
        <source>At login, give %@ a random address by %@.</source>
        <translation>ログイン時に、%@ に %@ のランダムなアドレスを設定します。</translation>
    </message>
    <message>
        <source>On %@, give %@ the address %@.</source>
        <translation>%@ では、%@ にアドレス %@ を設定します。</translation>
    </message>
    <message>
        <source>On any network, give %@ the address %@.</source>
        <translation>どのネットワークでも、%@ にアドレス %@ を設定します。</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ the address %@.</source>
        <translation>未知のネットワークでは、%@ にアドレス %@ を設定します。</translation>
    </message>
    <message>
        <source>At login, give %@ the address %@.</source>
        <translation>ログイン時に、%@ にアドレス %@ を設定します。</translation>
    </message>
    <message>
        <source>has an Active rule</source>
        <translation>有効なルールがあります</translation>
    </message>
    <message>
        <source>no rules are currently Active</source>
        <translation>現在有効なルールはありません</translation>
    </message>
    <message>
        <source>no rules have been configured</source>
        <translation>ルールは設定されていません</translation>
    </message>
    <message>
        <source>Please sign in to iCloud</source>
        <translation>iCloud にサインインしてください</translation>
    </message>
    <message>
        <source>Open System Settings, and login into your iCloud account to enable sync across all your devices.</source>
        <translation>すべてのデバイスで同期するには、システム設定を開き、iCloud アカウントにログインしてください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your iCloud account has changed. Do you want to synchronise with the new account?</source>
        <translation>iCloud アカウントが変わりました。新しいアカウントと同期しますか?</translation>
    </message>
    <message>
        <source>You are asked this after you have logged in to a new iCloud account, and after the computer was restored from a backup.</source>
        <translation>この確認は、新しい iCloud アカウントにログインしたときと、コンピューターをバックアップから復元したときに表示されます。</translation>
    </message>
    <message>
        <source>iCloud</source>
        <translation>iCloud</translation>
    </message>
    <message>
        <source>updates received</source>
        <translation>更新を受信しました</translation>
    </message>
    <message>
        <source>Account…</source>
        <translation>アカウント…</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>サインアウト</translation>
    </message>
    <message>
        <source>Signs in to the account to sync with</source>
        <translation>同期するアカウントにサインインします</translation>
    </message>
    <message>
        <source>Forgets the account and its passwords on this computer</source>
        <translation>このコンピューターからアカウントとパスワードを消去します</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Sync Account</source>
        <translation>同期アカウント</translation>
    </message>
    <message>
        <source>Kind of account</source>
        <translation>アカウントの種類</translation>
    </message>
    <message>
        <source>Where the files of the account are</source>
        <translation>アカウントのファイルがある場所</translation>
    </message>
    <message>
        <source>Nextcloud or WebDAV</source>
        <translation>Nextcloud または WebDAV</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Encrypts what is stored. The same on all your computers; without it nothing can be read.</source>
        <translation>保存内容を暗号化します。すべてのコンピューターで同じものを使います。これがないと何も読めません。</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>パスフレーズ</translation>
    </message>
    <message>
        <source>What the account holds is replaced by this computer&apos;s settings.</source>
        <translation>アカウントの内容は、このコンピューターの設定に置き換えられます。</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>Its address, or that of your files there, as a browser shows it</source>
        <translation>サーバーまたはそこにあるファイルの、ブラウザーに表示されるアドレス</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>The name that you have at this server</source>
        <translation>このサーバーでのユーザー名</translation>
    </message>
    <message>
        <source>App password</source>
        <translation>アプリパスワード</translation>
    </message>
    <message>
        <source>Made in the security settings of your account at the server</source>
        <translation>サーバーのアカウントのセキュリティ設定で作成します</translation>
    </message>
    <message>
        <source>Kept in your keyring.</source>
        <translation>キーリングに保管されます。</translation>
    </message>
    <message>
        <source>One that another program makes equal on your computers.</source>
        <translation>ほかのプログラムが、各コンピューター間で内容をそろえるフォルダー。</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Looks for it in your files</source>
        <translation>ファイルの中から探します</translation>
    </message>
    <message>
        <source>Repeat passphrase</source>
        <translation>パスフレーズ (確認)</translation>
    </message>
    <message>
        <source>The account is new: nobody can tell you later what you typed</source>
        <translation>アカウントは新規です。入力した内容はあとで誰にもわかりません</translation>
    </message>
    <message>
        <source>This is the SHA-256 fingerprint of the server&apos;s certificate. Accept it only if the server&apos;s administrator tells you the same one.</source>
        <translation>サーバーの証明書の SHA-256 フィンガープリントです。サーバーの管理者から同じものを知らされた場合にのみ受け入れてください。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy Fingerprint</source>
        <translation>フィンガープリントをコピー</translation>
    </message>
    <message>
        <source>To compare it in another window</source>
        <translation>別のウィンドウで比べるためにコピーします</translation>
    </message>
    <message>
        <source>Accept Certificate</source>
        <translation>証明書を受け入れる</translation>
    </message>
    <message>
        <source>Signs in, and trusts this certificate for this account from now on</source>
        <translation>サインインし、今後このアカウントではこの証明書を信頼します</translation>
    </message>
    <message>
        <source>Gives up what is under way, or closes</source>
        <translation>実行中の操作を中止するか、閉じます</translation>
    </message>
    <message>
        <source>Signing In…</source>
        <translation>サインイン中…</translation>
    </message>
    <message>
        <source>Tries the account, and switches sync on</source>
        <translation>アカウントを試し、同期をオンにします</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Return saves the note, Escape gives it up.</source>
        <translation>Return でメモを保存し、Escape で取り消します。</translation>
    </message>
    <message>
        <source>F2 edits the note, Delete deletes.</source>
        <translation>F2 でメモを編集し、Delete で削除します。</translation>
    </message>
    <message>
        <source>Save Addresses</source>
        <translation>アドレスを保存</translation>
    </message>
    <message>
        <source>Adds the addresses of the selected records to the saved ones.</source>
        <translation>選択した記録のアドレスを保存したアドレスに追加します。</translation>
    </message>
    <message>
        <source>Save Networks</source>
        <translation>ネットワークを保存</translation>
    </message>
    <message>
        <source>Adds the networks of the selected records to the saved ones.</source>
        <translation>選択した記録のネットワークを保存したネットワークに追加します。</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Writes what is listed into a file that spreadsheets read.</source>
        <translation>表示している一覧を、表計算ソフトで読めるファイルに書き出します。</translation>
    </message>
    <message>
        <source>Deletes the selected records.</source>
        <translation>選択した記録を削除します。</translation>
    </message>
    <message>
        <source>Upper and lower case matter.</source>
        <translation>大文字と小文字は区別されます。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>What is done stays done.</source>
        <translation>完了した分は元に戻りません。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Edit Note</source>
        <translation>メモを編集</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Reverse Order</source>
        <translation>逆順</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>履歴をエクスポート</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>File menu</source>
        <translation>ファイルメニュー</translation>
    </message>
    <message>
        <source>File menu (F10)</source>
        <translation>ファイルメニュー (F10)</translation>
    </message>
    <message>
        <source>External address</source>
        <translation>外部アドレス</translation>
    </message>
    <message>
        <source>Refresh external address</source>
        <translation>外部アドレスを更新</translation>
    </message>
    <message>
        <source>Asks a public service under which address it sees you</source>
        <translation>公開サービスに、そこから見えるアドレスを問い合わせます</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>名前 (省略可)</translation>
    </message>
    <message>
        <source>Saved addresses</source>
        <translation>保存したアドレス</translation>
    </message>
    <message>
        <source>Add the current address with the heart.</source>
        <translation>ハートで現在のアドレスを追加できます。</translation>
    </message>
    <message>
        <source>Edit Saved Items</source>
        <translation>保存した項目を編集</translation>
    </message>
    <message>
        <source>Opens the window of saved networks and addresses</source>
        <translation>保存したネットワークとアドレスのウィンドウを開きます</translation>
    </message>
    <message>
        <source>Click to put one into the field, or drag it there.</source>
        <translation>クリックするとフィールドに入ります。ドラッグすることもできます。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Join a network and press its heart.</source>
        <translation>ネットワークに接続してハートを押します。</translation>
    </message>
    <message>
        <source>Network…</source>
        <translation>ネットワーク…</translation>
    </message>
    <message>
        <source>Save a network by hand</source>
        <translation>ネットワークを手動で保存します</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Open the saved addresses and press the heart.</source>
        <translation>保存したアドレスを開いてハートを押します。</translation>
    </message>
    <message>
        <source>Address…</source>
        <translation>アドレス…</translation>
    </message>
    <message>
        <source>Save an address by hand</source>
        <translation>アドレスを手動で保存します</translation>
    </message>
    <message>
        <source>Import from History</source>
        <translation>履歴からインポート</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>インポート中…</translation>
    </message>
    <message>
        <source>Save the addresses and networks that the history knows</source>
        <translation>履歴にあるアドレスとネットワークを保存します</translation>
    </message>
    <message>
        <source>Recognize by</source>
        <translation>識別方法</translation>
    </message>
    <message>
        <source>Name %@</source>
        <translation>名前 %@</translation>
    </message>
    <message>
        <source>Access point %@</source>
        <translation>アクセスポイント %@</translation>
    </message>
    <message>
        <source>Pause the countdown of %@</source>
        <translation>%@ のカウントダウンを一時停止</translation>
    </message>
    <message>
        <source>Resume the countdown of %@</source>
        <translation>%@ のカウントダウンを再開</translation>
    </message>
    <message>
        <source>Countdown paused</source>
        <translation>カウントダウンを一時停止しました</translation>
    </message>
    <message>
        <source>Countdown resumed</source>
        <translation>カウントダウンを再開しました</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>ハードウェア</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>Hardware %@</source>
        <translation>ハードウェア %@</translation>
    </message>
    <message>
        <source>Vendor %@</source>
        <translation>ベンダー %@</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>現在のアドレス</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <translation>インターフェース</translation>
    </message>
    <message>
        <source>Randomizing…</source>
        <translation>ランダム化中…</translation>
    </message>
    <message>
        <source>Rules of %@</source>
        <translation>%@ のルール</translation>
    </message>
    <message>
        <source>Randomize %@</source>
        <translation>%@ をランダム化</translation>
    </message>
    <message>
        <source>Randomizing %@</source>
        <translation>%@ をランダム化しています</translation>
    </message>
    <message>
        <source>Restore the hardware address of %@</source>
        <translation>%@ のハードウェアアドレスを復元</translation>
    </message>
    <message>
        <source>Restoring the hardware address of %@</source>
        <translation>%@ のハードウェアアドレスを復元しています</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>再読み込み(&amp;L)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Reads the interfaces and their addresses anew</source>
        <translation>インターフェースとそのアドレスを読み込み直します</translation>
    </message>
    <message>
        <source>There are interfaces that are not listed here yet.</source>
        <translation>まだここに表示されていないインターフェースがあります。</translation>
    </message>
    <message>
        <source>The list shows the addresses as they were when it was opened.</source>
        <translation>リストには、開いたときのアドレスが表示されています。</translation>
    </message>
    <message>
        <source>&amp;Install Helper</source>
        <translation>ヘルパーをインストール(&amp;I)</translation>
    </message>
    <message>
        <source>The helper is not installed</source>
        <translation>ヘルパーがインストールされていません</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>インストール中…</translation>
    </message>
    <message>
        <source>Install helper</source>
        <translation>ヘルパーをインストール</translation>
    </message>
    <message>
        <source>Asks for an administrator&apos;s password</source>
        <translation>管理者のパスワードを求めます</translation>
    </message>
    <message>
        <source>By the Quillon authors</source>
        <translation>Quillon の作者による</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>Ask when another program replaces an address</source>
        <translation>ほかのプログラムがアドレスを置き換えたら確認する</translation>
    </message>
    <message>
        <source>Who manages each interface</source>
        <translation>各インターフェースを管理するプログラム</translation>
    </message>
    <message>
        <source>Uninstalling…</source>
        <translation>アンインストール中…</translation>
    </message>
    <message>
        <source>Repeat every %@ minutes by default</source>
        <translation>既定で %@ 分ごとに繰り返す</translation>
    </message>
    <message>
        <source>For rules whose own minutes are left empty</source>
        <translation>分の指定が空のルールに使用します</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>大文字</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>小文字</translation>
    </message>
    <message>
        <source>Letters of addresses</source>
        <translation>アドレスの文字</translation>
    </message>
    <message>
        <source>Look up the external address</source>
        <translation>外部アドレスを調べる</translation>
    </message>
    <message>
        <source>Asks a public service whenever the network changes.</source>
        <translation>ネットワークが変わるたびに公開サービスに問い合わせます。</translation>
    </message>
    <message>
        <source>Start Quillon at login</source>
        <translation>ログイン時に Quillon を起動</translation>
    </message>
    <message>
        <source>Do not open the window at login</source>
        <translation>ログイン時にウィンドウを開かない</translation>
    </message>
    <message>
        <source>Show in the status bar</source>
        <translation>ステータスバーに表示</translation>
    </message>
    <message>
        <source>Hide from the task bar</source>
        <translation>タスクバーに表示しない</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>通知を表示</translation>
    </message>
    <message>
        <source>Shortcuts that work in every window</source>
        <translation>すべてのウィンドウで使えるショートカット</translation>
    </message>
    <message>
        <source>Sync settings, rules and history</source>
        <translation>設定、ルール、履歴を同期</translation>
    </message>
    <message>
        <source>Shortcut for “%@”</source>
        <translation>「%@」のショートカット</translation>
    </message>
    <message>
        <source>Clear the shortcut for “%@”</source>
        <translation>「%@」のショートカットを消去</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Countdown ended</source>
        <translation>カウントダウンが終了しました</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>繰り返し</translation>
    </message>
    <message>
        <source>Save Rule</source>
        <translation>ルールを保存</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>何もしない</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>アドレスを変更</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>1 回</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>一定間隔</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分ごと</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>分ごと</translation>
    </message>
    <message>
        <source>New Random Address</source>
        <translation>新しいランダムなアドレス</translation>
    </message>
    <message>
        <source>Makes a random address, saves it, and uses it whenever the rule acts</source>
        <translation>ランダムなアドレスを作成して保存し、ルールが働くたびに使用します</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>New rules start switched off.</source>
        <translation>新しいルールは最初はオフです。</translation>
    </message>
    <message>
        <source>Press Return to rename the rule</source>
        <translation>Return キーでルールの名前を変更します</translation>
    </message>
    <message>
        <source>Active rule</source>
        <translation>有効なルール</translation>
    </message>
    <message>
        <source>No active rules</source>
        <translation>有効なルールなし</translation>
    </message>
    <message>
        <source>No rules</source>
        <translation>ルールなし</translation>
    </message>
    <message>
        <source>No rule for this interface.</source>
        <translation>このインターフェースのルールはありません。</translation>
    </message>
    <message>
        <source>Edit Rules</source>
        <translation>ルールを編集</translation>
    </message>
    <message>
        <source>Opens the rule editor</source>
        <translation>ルールエディターを開きます</translation>
    </message>
    <message>
        <source>Rules change the address when you join a network.</source>
        <translation>ルールは、ネットワークに接続したときにアドレスを変更します。</translation>
    </message>
    <message>
        <source>New Network Rule</source>
        <translation>新しいネットワークルール</translation>
    </message>
    <message>
        <source>Network Rule</source>
        <translation>ネットワークルール</translation>
    </message>
    <message>
        <source>New network rule</source>
        <translation>新しいネットワークルール</translation>
    </message>
    <message>
        <source>Login Rule</source>
        <translation>ログインルール</translation>
    </message>
    <message>
        <source>New login rule</source>
        <translation>新しいログインルール</translation>
    </message>
    <message>
        <source>Edit the rule (Return)</source>
        <translation>ルールを編集します (Return)</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Duplicate the rules (Ctrl+D)</source>
        <translation>ルールを複製します (Ctrl+D)</translation>
    </message>
    <message>
        <source>Delete the rules (Delete)</source>
        <translation>ルールを削除します (Delete)</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>No name</source>
        <translation>名前なし</translation>
    </message>
    <message>
        <source>Saved Items</source>
        <translation>保存した項目</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>ページを開く</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Show it in the software center, or in the browser</source>
        <translation>ソフトウェアセンターまたはブラウザーで表示します</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>新しいバージョンを確認する</translation>
    </message>
    <message>
        <source>Open a new version&apos;s page</source>
        <translation>新しいバージョンのページを開く</translation>
    </message>
    <message>
        <source>This copy of Quillon does not look for new versions.</source>
        <translation>この Quillon は新しいバージョンを確認しません。</translation>
    </message>
    <message>
        <source>How often</source>
        <translation>頻度</translation>
    </message>
    <message>
        <source>At once, in the software center or the browser. Quillon itself downloads and installs nothing.</source>
        <translation>見つかり次第、ソフトウェアセンターまたはブラウザーで開きます。Quillon 自体は何もダウンロード、インストールしません。</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>確認中…</translation>
    </message>
    <message>
        <source>Only while Quillon checks by itself</source>
        <translation>Quillon が自動で確認するときのみ</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Pause or Resume Timer</source>
        <translation>タイマーを一時停止または再開</translation>
    </message>
    <message>
        <source>Open the preferences where the list of vendors is downloaded</source>
        <translation>ベンダーのリストをダウンロードする設定を開きます</translation>
    </message>
    <message>
        <source>&amp;Vendor</source>
        <translation>ベンダー(&amp;V)</translation>
    </message>
    <message>
        <source>Vendor of random addresses</source>
        <translation>ランダムなアドレスのベンダー</translation>
    </message>
    <message>
        <source>Type the beginning of a name, then choose from the list</source>
        <translation>名前の先頭を入力し、リストから選択します</translation>
    </message>
    <message>
        <source>Hide vendors</source>
        <translation>ベンダーを隠す</translation>
    </message>
    <message>
        <source>Show vendors</source>
        <translation>ベンダーを表示</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>レジストリ</translation>
    </message>
    <message>
        <source>Bring back the vendors from before the last update</source>
        <translation>前回の更新より前のベンダーに戻します</translation>
    </message>
    <message>
        <source>The vendors from before the last update are being brought back</source>
        <translation>前回の更新より前のベンダーに戻しています</translation>
    </message>
    <message>
        <source>Not while the database is being updated</source>
        <translation>データベースの更新中は使用できません</translation>
    </message>
    <message>
        <source>There are no vendors from before an update</source>
        <translation>更新前のベンダーはありません</translation>
    </message>
    <message>
        <source>Not while the vendors from before are being brought back</source>
        <translation>以前のベンダーに戻している間は使用できません</translation>
    </message>
    <message>
        <source>Restore previous</source>
        <translation>以前のものに戻す</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>ダウンロードの進行状況</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>ベンダー</translation>
    </message>
    <message>
        <source>Signal and noise are not known</source>
        <translation>信号とノイズは不明です</translation>
    </message>
    <message>
        <source>Signal %@</source>
        <translation>信号 %@</translation>
    </message>
    <message>
        <source>Noise %@</source>
        <translation>ノイズ %@</translation>
    </message>
    <message>
        <source>Signal %@, noise %@</source>
        <translation>信号 %@、ノイズ %@</translation>
    </message>
    <message>
        <source>Signal and noise over the last five minutes</source>
        <translation>過去 5 分間の信号とノイズ</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 分</translation>
    </message>
    <message>
        <source>What to search</source>
        <translation>検索対象</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Randomize</source>
        <translation>ランダム化(&amp;R)</translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation>アドレス(&amp;D)</translation>
    </message>
    <message>
        <source>The address in use is not the hardware address</source>
        <translation>使用中のアドレスはハードウェアアドレスではありません</translation>
    </message>
    <message>
        <source>Apply address</source>
        <translation>アドレスを適用</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>適用中…</translation>
    </message>
    <message>
        <source>Changed: the address in use is not the hardware address</source>
        <translation>変更済み: 使用中のアドレスはハードウェアアドレスではありません</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits. Return applies the address.</source>
        <translation>16 進数 12 桁。Return キーでアドレスを適用します。</translation>
    </message>
    <message>
        <source>Gives the interface the address in the field</source>
        <translation>フィールドのアドレスをインターフェースに設定します</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits, with or without colons. Return applies the address.</source>
        <translation>16 進数 12 桁、コロンはあってもなくてもかまいません。Return キーでアドレスを適用します。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>The address the device was made with.</source>
        <translation>デバイスの製造時に付けられたアドレスです。</translation>
    </message>
    <message>
        <source>Restore hardware address</source>
        <translation>ハードウェアアドレスを復元</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>復元中…</translation>
    </message>
    <message>
        <source>Gives the interface the address back that it was made with</source>
        <translation>インターフェースを製造時のアドレスに戻します</translation>
    </message>
    <message>
        <source>Hardware address</source>
        <translation>ハードウェアアドレス</translation>
    </message>
    <message>
        <source>Link active</source>
        <translation>リンクあり</translation>
    </message>
    <message>
        <source>Link inactive</source>
        <translation>リンクなし</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4 アドレス</translation>
    </message>
    <message>
        <source>The network interface whose address is shown and changed</source>
        <translation>アドレスを表示、変更するネットワークインターフェース</translation>
    </message>
    <message>
        <source>What is the helper?</source>
        <translation>ヘルパーとは?</translation>
    </message>
    <message>
        <source>About the helper</source>
        <translation>ヘルパーについて</translation>
    </message>
    <message>
        <source>Helper hint</source>
        <translation>ヘルパーについてのヒント</translation>
    </message>
    <message>
        <source>What is new is in Preferences › Updates.</source>
        <translation>新機能は「設定」›「更新」にあります。</translation>
    </message>
    <message>
        <source>Only a random address has a vendor</source>
        <translation>ベンダーを持つのはランダムなアドレスだけです</translation>
    </message>
    <message>
        <source>No interface is selected: there is none to choose a vendor for</source>
        <translation>インターフェースが選択されていないため、ベンダーを選べません</translation>
    </message>
    <message numerus="yes">
        <source>%@ (added %@ new Identifiers)</source>
        <translation>
            <numerusform>%@ (新しい識別子 %@ 件を追加)</numerusform>
        </translation>
    </message>
    <message>
        <source>Getting Vendor infomation...</source>
        <translation>ベンダー情報を取得中...</translation>
    </message>
    <message>
        <source>No Vendor Information available...</source>
        <translation>ベンダー情報がありません...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln were saved. Save again for more.</source>
        <translation>
            <numerusform>%Ln 件を保存しました。続きは再度保存してください。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records selected</source>
        <translation>
            <numerusform>%Ln 件の記録を選択</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records deleted</source>
        <translation>
            <numerusform>%Ln 件の記録を削除しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %Ln records?</source>
        <translation>
            <numerusform>%Ln 件の記録を削除しますか?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses</source>
        <translation>
            <numerusform>%Ln 件のアドレス</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks</source>
        <translation>
            <numerusform>%Ln 件のネットワーク</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks added.</source>
        <translation>
            <numerusform>%Ln 件のネットワークを追加しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses added.</source>
        <translation>
            <numerusform>%Ln 件のアドレスを追加しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records</source>
        <translation>
            <numerusform>%Ln 件の記録</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%@ of %Ln records</source>
        <translation>
            <numerusform>%@ / %Ln 件の記録</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On %@, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>%@ では、%@ に新しいランダムなアドレスを %n 分ごとに設定します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On any network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>どのネットワークでも、%@ に新しいランダムなアドレスを %n 分ごとに設定します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On an unknown network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>未知のネットワークでは、%@ に新しいランダムなアドレスを %n 分ごとに設定します。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules deleted</source>
        <translation>
            <numerusform>%Ln 件のルールを削除しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records exported</source>
        <translation>
            <numerusform>%Ln 件の記録をエクスポートしました</numerusform>
        </translation>
    </message>
    <message>
        <source>Sign in to the account first.</source>
        <translation>先にアカウントにサインインしてください。</translation>
    </message>
    <message>
        <source>Enter the current passphrase.</source>
        <translation>現在のパスフレーズを入力してください。</translation>
    </message>
    <message>
        <source>Enter a new passphrase.</source>
        <translation>新しいパスフレーズを入力してください。</translation>
    </message>
    <message>
        <source>The new passphrase is the current one.</source>
        <translation>新しいパスフレーズが現在のものと同じです。</translation>
    </message>
    <message>
        <source>Another computer has just changed the key file. Try again with the passphrase that holds now.</source>
        <translation>別のコンピューターがキーファイルを変更したところです。現在有効なパスフレーズでもう一度試してください。</translation>
    </message>
    <message>
        <source>The connection was lost. Either the new passphrase or the current one opens the account now.</source>
        <translation>接続が切れました。アカウントは、新しいパスフレーズかこれまでのパスフレーズのどちらかで開きます。</translation>
    </message>
    <message>
        <source>Another computer has changed the passphrase at the same time. That one holds now.</source>
        <translation>別のコンピューターが同時にパスフレーズを変更しました。現在はそちらが有効です。</translation>
    </message>
    <message>
        <source>This is not the current passphrase.</source>
        <translation>現在のパスフレーズではありません。</translation>
    </message>
    <message>
        <source>Another key is in the account: somebody has made it anew, or changed it. Nothing is synced until you sign in again.</source>
        <translation>アカウントに別のキーがあります。誰かがアカウントを作り直したか、変更しています。再度サインインするまで何も同期されません。</translation>
    </message>
    <message>
        <source>Reading the account&apos;s key file…</source>
        <translation>アカウントのキーファイルを読み込んでいます…</translation>
    </message>
    <message>
        <source>Writing the account&apos;s key file…</source>
        <translation>アカウントのキーファイルを書き込んでいます…</translation>
    </message>
    <message>
        <source>The passphrase was changed. Your other computers stay signed in.</source>
        <translation>パスフレーズを変更しました。ほかのコンピューターはサインインしたままです。</translation>
    </message>
    <message>
        <source>What the network still sees</source>
        <translation>ネットワークにまだ見えるもの</translation>
    </message>
    <message>
        <source>What the network of %@ still sees</source>
        <translation>%@ のネットワークにまだ見えるもの</translation>
    </message>
    <message>
        <source>No interface is selected.</source>
        <translation>インターフェースが選択されていません。</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>確認中…</translation>
    </message>
    <message>
        <source>Nothing but the address is known to tell who this is.</source>
        <translation>わかっている範囲では、アドレスのほかにこのコンピューターを特定できるものはありません。</translation>
    </message>
    <message>
        <source>Made from the current address</source>
        <translation>現在のアドレスから作成</translation>
    </message>
    <message>
        <source>Made from the hardware address</source>
        <translation>ハードウェアアドレスから作成</translation>
    </message>
    <message>
        <source>Made from another address</source>
        <translation>別のアドレスから作成</translation>
    </message>
    <message>
        <source>Made for this network</source>
        <translation>このネットワーク用に作成</translation>
    </message>
    <message>
        <source>Made for this computer</source>
        <translation>このコンピューター用に作成</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Changes with the address.</source>
        <translation>アドレスとともに変わります。</translation>
    </message>
    <message>
        <source>Changes by itself after a time.</source>
        <translation>しばらくすると自動で変わります。</translation>
    </message>
    <message>
        <source>Stays the same on this network.</source>
        <translation>このネットワークでは同じです。</translation>
    </message>
    <message>
        <source>Stays the same on every network.</source>
        <translation>どのネットワークでも同じです。</translation>
    </message>
    <message>
        <source>Gives the hardware address away.</source>
        <translation>ハードウェアアドレスが知られます。</translation>
    </message>
    <message>
        <source>Gives an earlier address, or that of another interface, away.</source>
        <translation>以前のアドレスか、別のインターフェースのアドレスが知られます。</translation>
    </message>
    <message>
        <source>Who sets it does not tell.</source>
        <translation>設定しているプログラムから情報が得られません。</translation>
    </message>
    <message>
        <source>Whether it changes with the address is not known.</source>
        <translation>アドレスとともに変わるかどうかは不明です。</translation>
    </message>
    <message>
        <source>Kept across the change, since %@.</source>
        <translation>アドレスの変更後も同じです (%@ から)。</translation>
    </message>
    <message>
        <source>To show less: %@</source>
        <translation>見えるものを減らすには: %@</translation>
    </message>
    <message>
        <source>To show less, in %@: %@</source>
        <translation>見えるものを減らすには (%@): %@</translation>
    </message>
    <message>
        <source>Name sent with DHCP</source>
        <translation>DHCP で送られる名前</translation>
    </message>
    <message>
        <source>DHCP client identifier</source>
        <translation>DHCP クライアント識別子</translation>
    </message>
    <message>
        <source>DHCPv6 identifier (DUID)</source>
        <translation>DHCPv6 識別子 (DUID)</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>IPv6 アドレス</translation>
    </message>
    <message>
        <source>More IPv6 addresses</source>
        <translation>その他の IPv6 アドレス</translation>
    </message>
    <message>
        <source>Name told by mDNS</source>
        <translation>mDNS で知らされる名前</translation>
    </message>
    <message>
        <source>Name told by LLMNR</source>
        <translation>LLMNR で知らされる名前</translation>
    </message>
    <message>
        <source>Login name (802.1X)</source>
        <translation>ログイン名 (802.1X)</translation>
    </message>
    <message>
        <source>Change Passphrase…</source>
        <translation>パスフレーズを変更…</translation>
    </message>
    <message>
        <source>Gives the account another passphrase, for all computers</source>
        <translation>すべてのコンピューターについて、アカウントのパスフレーズを変更します</translation>
    </message>
    <message>
        <source>Change Passphrase</source>
        <translation>パスフレーズを変更</translation>
    </message>
    <message>
        <source>From then on the account is opened by the new passphrase</source>
        <translation>以後、アカウントは新しいパスフレーズで開きます</translation>
    </message>
    <message>
        <source>Current passphrase</source>
        <translation>現在のパスフレーズ</translation>
    </message>
    <message>
        <source>The one with which you signed in</source>
        <translation>サインインに使ったパスフレーズです</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>新しいパスフレーズ</translation>
    </message>
    <message>
        <source>At least eight characters. Nobody can tell you later what you typed.</source>
        <translation>8 文字以上です。入力した内容はあとで誰にもわかりません。</translation>
    </message>
    <message>
        <source>Repeat new passphrase</source>
        <translation>新しいパスフレーズ (確認)</translation>
    </message>
    <message>
        <source>The same once more</source>
        <translation>同じものをもう一度入力します</translation>
    </message>
    <message>
        <source>Your other computers stay signed in. Copies of the account that somebody has made before still open with the current passphrase.</source>
        <translation>ほかのコンピューターはサインインしたままです。以前に作られたアカウントのコピーは、引き続き現在のパスフレーズで開きます。</translation>
    </message>
</context>
</TS>
