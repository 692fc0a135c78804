<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Quillon</name>
    <message>
        <source>Unknown...</source>
        <translation>未知...</translation>
    </message>
    <message>
        <source>Another program is using the file.</source>
        <translation>另一个程序正在使用该文件。</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>磁盘空间已满。</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>无法读取或写入磁盘。</translation>
    </message>
    <message>
        <source>Rules and history could not be saved. They are kept while Quillon runs. %@</source>
        <translation>无法保存规则和历史记录。它们会保留到 Quillon 退出为止。%@</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>The records were written by a newer version of Quillon</source>
        <translation>记录由更新版本的 Quillon 写入</translation>
    </message>
    <message>
        <source>They are left untouched; please install that version again to use them: %@</source>
        <translation>记录不会改动；要使用它们，请重新安装该版本：%@</translation>
    </message>
    <message>
        <source>The records cannot be opened</source>
        <translation>无法打开记录</translation>
    </message>
    <message>
        <source>%@

Rules and history are in this file, which is left as it is: %@</source>
        <translation>%@

规则和历史记录位于此文件中，文件保持原样：%@</translation>
    </message>
    <message>
        <source>Settings are damaged</source>
        <translation>设置已损坏</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file was left as it was: %@</source>
        <translation>Quillon 将使用已知的设置或默认值继续运行。损坏的文件保持原样：%@</translation>
    </message>
    <message>
        <source>Settings were damaged</source>
        <translation>设置曾损坏</translation>
    </message>
    <message>
        <source>Quillon goes on with what it knows, or with its defaults. The damaged file is kept: %@</source>
        <translation>Quillon 将使用已知的设置或默认值继续运行。损坏的文件已保留：%@</translation>
    </message>
    <message>
        <source>Settings cannot be read</source>
        <translation>无法读取设置</translation>
    </message>
    <message>
        <source>Quillon uses its defaults and leaves the file alone: %@</source>
        <translation>Quillon 将使用默认值，不改动该文件：%@</translation>
    </message>
    <message>
        <source>Settings cannot be saved</source>
        <translation>无法保存设置</translation>
    </message>
    <message>
        <source>Changes last until Quillon quits. Please check the permissions of %@</source>
        <translation>更改在 Quillon 退出前有效。请检查其权限：%@</translation>
    </message>
    <message>
        <source>There is no room left on the disk. Changes last until Quillon quits: %@</source>
        <translation>磁盘空间已满。更改在 Quillon 退出前有效：%@</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>退出时无法保存更改。仍要退出吗？</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>现在退出将丢失自上次成功保存以来所做的全部更改</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>仍然退出</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The account holds changes by a newer version of Quillon. Update it here to get them.</source>
        <translation>账户中有更新版本的 Quillon 所做的更改。请更新此处的 Quillon 以获取它们。</translation>
    </message>
    <message>
        <source>A file in the account is damaged, or somebody has changed it. It is left alone.</source>
        <translation>账户中的一个文件已损坏，或被人更改。该文件保持原样。</translation>
    </message>
    <message>
        <source>The password of the account is not in the keyring. Sign in again.</source>
        <translation>密钥环中没有账户的密码。请重新登录。</translation>
    </message>
    <message>
        <source>What is to be synced could not be stored on this computer.</source>
        <translation>无法在此计算机上存储要同步的内容。</translation>
    </message>
    <message>
        <source>This account is new. Repeat the passphrase.</source>
        <translation>这是新账户。请再次输入口令。</translation>
    </message>
    <message>
        <source>The two passphrases differ.</source>
        <translation>两次输入的口令不同。</translation>
    </message>
    <message>
        <source>The passphrase is too short: it needs at least eight characters.</source>
        <translation>口令太短：至少需要八个字符。</translation>
    </message>
    <message>
        <source>The account has another passphrase.</source>
        <translation>账户使用的是另一个口令。</translation>
    </message>
    <message>
        <source>The account&apos;s key file is damaged. Put back an older copy of it.</source>
        <translation>账户的密钥文件已损坏。请放回它的旧副本。</translation>
    </message>
    <message>
        <source>The account was made by a newer version of Quillon.</source>
        <translation>账户由更新版本的 Quillon 创建。</translation>
    </message>
    <message>
        <source>The account&apos;s key file is missing. A computer that is signed in puts it back when it syncs next.</source>
        <translation>账户的密钥文件缺失。已登录的计算机会在下次同步时将其放回。</translation>
    </message>
    <message>
        <source>This computer has not enough free memory for that now.</source>
        <translation>此计算机现在没有足够的可用内存。</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>请选择文件夹。</translation>
    </message>
    <message>
        <source>Enter the server&apos;s address.</source>
        <translation>请输入服务器的地址。</translation>
    </message>
    <message>
        <source>Enter a user name and a password.</source>
        <translation>请输入用户名和密码。</translation>
    </message>
    <message>
        <source>Enter a passphrase.</source>
        <translation>请输入口令。</translation>
    </message>
    <message>
        <source>%@ did not let go of it</source>
        <translation>%@ 未释放该接口</translation>
    </message>
    <message>
        <source>Only the session in front of this computer may change it</source>
        <translation>只有坐在这台计算机前的会话才能更改地址</translation>
    </message>
    <message>
        <source>Please make sure you have installed the HelperTool</source>
        <translation>请确认已安装辅助程序</translation>
    </message>
    <message>
        <source>%@ gives this network an Address of its own. Look for it in the network&apos;s settings</source>
        <translation>%@ 为此网络指定了自己的地址，请在网络设置中查看</translation>
    </message>
    <message>
        <source>Please make sure your Device is enabled</source>
        <translation>请确认设备已启用</translation>
    </message>
    <message>
        <source>%@ Address Changed</source>
        <translation>%@：地址已更改</translation>
    </message>
    <message>
        <source>Your new MAC Address is: %@</source>
        <translation>新的 MAC 地址：%@</translation>
    </message>
    <message>
        <source>Please connect it again with the program that connects it</source>
        <translation>请使用管理该连接的程序重新连接</translation>
    </message>
    <message>
        <source>Please connect it again with %@</source>
        <translation>请使用 %@ 重新连接</translation>
    </message>
    <message>
        <source>%@ is not connected again</source>
        <translation>%@ 尚未重新连接</translation>
    </message>
    <message>
        <source>%@ keeps the IP Address of before</source>
        <translation>%@ 仍使用原来的 IP 地址</translation>
    </message>
    <message>
        <source>%@ keeps an IPv6 Address made from the old one</source>
        <translation>%@ 仍保留由旧地址生成的 IPv6 地址</translation>
    </message>
    <message>
        <source>%@ Address may be replaced</source>
        <translation>%@：地址可能会被替换</translation>
    </message>
    <message>
        <source>This session may not control %@. The new Address holds until the interface connects the next time</source>
        <translation>此会话无权控制 %@。新地址在该接口下次连接前有效</translation>
    </message>
    <message>
        <source>The new Address and the old Address are identical</source>
        <translation>新地址与旧地址相同</translation>
    </message>
    <message>
        <source>%@ Address was replaced</source>
        <translation>%@：地址已被替换</translation>
    </message>
    <message>
        <source>Another program keeps setting an Address of its own. Your rule acts again when you join a network</source>
        <translation>另一个程序不断设置自己的地址。下次加入网络时规则将再次生效</translation>
    </message>
    <message>
        <source>%@ Address was not Changed</source>
        <translation>%@：地址未更改</translation>
    </message>
    <message>
        <source>The interface does not say which address it has now.</source>
        <translation>接口未报告它现在的地址。</translation>
    </message>
    <message>
        <source>Changed: this is the address in use now.</source>
        <translation>已更改：这是现在使用的地址。</translation>
    </message>
    <message>
        <source>Not changed: %@.</source>
        <translation>未更改：%@。</translation>
    </message>
    <message>
        <source>Not connected again: look at the address when it is.</source>
        <translation>尚未重新连接：连接后请检查地址。</translation>
    </message>
    <message>
        <source>Changed, but to another address than you asked for.</source>
        <translation>已更改，但不是所要求的地址。</translation>
    </message>
    <message>
        <source>The address was not changed.</source>
        <translation>地址未更改。</translation>
    </message>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>%@ now has %@ in place of %@.</source>
        <translation>%@ 现在的地址是 %@，而不是 %@。</translation>
    </message>
    <message>
        <source>%@ owns this interface.</source>
        <translation>%@ 正在管理此接口。</translation>
    </message>
    <message>
        <source>%@ shows another Address</source>
        <translation>%@ 显示另一个地址</translation>
    </message>
    <message>
        <source>Apply again</source>
        <translation>重新应用</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>接受</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>Show window</source>
        <translation>显示窗口</translation>
    </message>
    <message>
        <source>Randomize address</source>
        <translation>随机更改地址</translation>
    </message>
    <message>
        <source>Shortcut for “%@” not set</source>
        <translation>未设置“%@”的快捷键</translation>
    </message>
    <message>
        <source>A shortcut needs Ctrl, Alt or Meta and one more key.</source>
        <translation>快捷键需要 Ctrl、Alt 或 Meta 加另一个键。</translation>
    </message>
    <message>
        <source>Another program uses this shortcut.</source>
        <translation>另一个程序正在使用此快捷键。</translation>
    </message>
    <message>
        <source>The desktop refused this shortcut.</source>
        <translation>桌面环境拒绝了此快捷键。</translation>
    </message>
    <message>
        <source>This keyboard has no such key.</source>
        <translation>此键盘上没有该键。</translation>
    </message>
    <message>
        <source>This desktop does not let programs set global shortcuts.</source>
        <translation>此桌面环境不允许程序设置全局快捷键。</translation>
    </message>
    <message>
        <source>Quillon requires Location Services to determine your current network details</source>
        <translation>Quillon 需要定位服务才能获取当前网络的详细信息</translation>
    </message>
    <message>
        <source>You need to give Quillon access in System Settings &gt; Privacy &amp; Security &gt; Privacy &gt; Location Services</source>
        <translation>请在此处授予 Quillon 访问权限：系统设置 &gt; 隐私与安全 &gt; 隐私 &gt; 定位服务</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Random Address</source>
        <translation>随机地址</translation>
    </message>
    <message>
        <source>Not currently connected...</source>
        <translation>当前未连接...</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>WPA Personal</source>
        <translation>WPA 个人</translation>
    </message>
    <message>
        <source>WPA Personal Mixed</source>
        <translation>WPA 个人（混合）</translation>
    </message>
    <message>
        <source>WPA2 Personal</source>
        <translation>WPA2 个人</translation>
    </message>
    <message>
        <source>Personal</source>
        <translation>个人</translation>
    </message>
    <message>
        <source>Dynamic WEP</source>
        <translation>动态 WEP</translation>
    </message>
    <message>
        <source>WPA Enterprise</source>
        <translation>WPA 企业</translation>
    </message>
    <message>
        <source>WPA Enterprise Mixed</source>
        <translation>WPA 企业（混合）</translation>
    </message>
    <message>
        <source>WPA2 Enterprise</source>
        <translation>WPA2 企业</translation>
    </message>
    <message>
        <source>Enterprise</source>
        <translation>企业</translation>
    </message>
    <message>
        <source>This account can be used.</source>
        <translation>此账户可以使用。</translation>
    </message>
    <message>
        <source>This account can be used. Set it up on one computer after the other: its server does not notice when two write at the same moment.</source>
        <translation>此账户可以使用。请在各台计算机上逐一设置：其服务器无法察觉两台计算机同时写入。</translation>
    </message>
    <message>
        <source>The server did not accept this name and password.</source>
        <translation>服务器不接受此名称和密码。</translation>
    </message>
    <message>
        <source>This folder is not there at the moment.</source>
        <translation>此文件夹目前不存在。</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>无法连接服务器。</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted.</source>
        <translation>服务器的证书不受信任。</translation>
    </message>
    <message>
        <source>This folder cannot be written.</source>
        <translation>无法写入此文件夹。</translation>
    </message>
    <message>
        <source>There is no space left in this folder.</source>
        <translation>此文件夹没有剩余空间。</translation>
    </message>
    <message>
        <source>There is no space left in this account.</source>
        <translation>此账户没有剩余空间。</translation>
    </message>
    <message>
        <source>The account does not take files of this size.</source>
        <translation>此账户不接受这么大的文件。</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>这不是文件夹。</translation>
    </message>
    <message>
        <source>The server shows no files at this address. If it asks for a second factor, use an app password.</source>
        <translation>服务器在此地址没有提供文件。如果它要求两步验证，请使用应用专用密码。</translation>
    </message>
    <message>
        <source>The account did not work as expected. Try again later.</source>
        <translation>账户没有按预期工作。请稍后再试。</translation>
    </message>
    <message>
        <source>Starts Quillon when you log in</source>
        <translation>登录时启动 Quillon</translation>
    </message>
    <message>
        <source>There is no keyring in this session to keep the password in.</source>
        <translation>此会话中没有可保存密码的密钥环。</translation>
    </message>
    <message>
        <source>The keyring was not unlocked.</source>
        <translation>密钥环未解锁。</translation>
    </message>
    <message>
        <source>The keyring did not answer.</source>
        <translation>密钥环没有响应。</translation>
    </message>
    <message>
        <source>Quillon is not in the status bar</source>
        <translation>Quillon 不在状态栏中</translation>
    </message>
    <message>
        <source>This desktop shows no status items. Minimize the window to keep Quillon running: closing it ends Quillon.</source>
        <translation>此桌面环境不显示状态图标。要让 Quillon 继续运行，请最小化窗口：关闭窗口会退出 Quillon。</translation>
    </message>
    <message>
        <source>Signed in to the folder %@</source>
        <translation>已登录文件夹 %@</translation>
    </message>
    <message>
        <source>Signed in as %@ at %@</source>
        <translation>已以 %@ 身份登录 %@</translation>
    </message>
    <message>
        <source>Signed out. Rules, history and settings stay on this computer.</source>
        <translation>已退出登录。规则、历史记录和设置保留在此计算机上。</translation>
    </message>
    <message>
        <source>Looking for your files…</source>
        <translation>正在查找文件…</translation>
    </message>
    <message>
        <source>Trying what the account can do…</source>
        <translation>正在测试账户的功能…</translation>
    </message>
    <message>
        <source>Opening the account with the passphrase…</source>
        <translation>正在用口令打开账户…</translation>
    </message>
    <message>
        <source>Waiting for the keyring…</source>
        <translation>正在等待密钥环…</translation>
    </message>
    <message>
        <source>Write the whole path of the folder.</source>
        <translation>请填写文件夹的完整路径。</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>请输入服务器地址。</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>Enter an app password.</source>
        <translation>请输入应用专用密码。</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>两次输入的口令不一致。</translation>
    </message>
    <message>
        <source>The record has been deleted.</source>
        <translation>记录已被删除。</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>正在导出…</translation>
    </message>
    <message>
        <source>The records could not be read.</source>
        <translation>无法读取记录。</translation>
    </message>
    <message>
        <source>The file could not be written. %@</source>
        <translation>无法写入文件。%@</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在搜索…</translation>
    </message>
    <message>
        <source>%@: %@</source>
        <translation>%@：%@</translation>
    </message>
    <message>
        <source>Nothing contains “%@”. Upper and lower case matter.</source>
        <translation>没有包含“%@”的内容。区分大小写。</translation>
    </message>
    <message>
        <source>Every address change is listed here.</source>
        <translation>每次地址更改都列在这里。</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>正在删除…</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>正在保存…</translation>
    </message>
    <message>
        <source>The records could not be deleted.</source>
        <translation>无法删除记录。</translation>
    </message>
    <message>
        <source>So many records at once cannot be brought back.</source>
        <translation>一次删除这么多记录后将无法恢复。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Nothing in the history that is not saved.</source>
        <translation>历史记录中没有未保存的内容。</translation>
    </message>
    <message>
        <source>%@ and %@ added.</source>
        <translation>已添加 %@和 %@。</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>无法读取历史记录。</translation>
    </message>
    <message>
        <source>%@ These are the newest %@; import again for more.</source>
        <translation>%@ 这些是最新的 %@ 条；再次导入可获取更多。</translation>
    </message>
    <message>
        <source>Today %@</source>
        <translation>今天 %@</translation>
    </message>
    <message>
        <source>Yesterday %@</source>
        <translation>昨天 %@</translation>
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
        <translation>日期</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Search All Fields</source>
        <translation>搜索所有字段</translation>
    </message>
    <message>
        <source>Search Devices</source>
        <translation>搜索设备</translation>
    </message>
    <message>
        <source>Search Interfaces</source>
        <translation>搜索接口</translation>
    </message>
    <message>
        <source>Search Addresses</source>
        <translation>搜索地址</translation>
    </message>
    <message>
        <source>Search Network Names</source>
        <translation>搜索网络名称</translation>
    </message>
    <message>
        <source>Search BSSIDs</source>
        <translation>搜索 BSSID</translation>
    </message>
    <message>
        <source>Search Notes</source>
        <translation>搜索备注</translation>
    </message>
    <message>
        <source>%@ was given %@.</source>
        <translation>%@ 获得了 %@。</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@.</source>
        <translation>%@ (%@) 获得了 %@。</translation>
    </message>
    <message>
        <source>%@ (%@) was given %@ on %@.</source>
        <translation>%@ (%@) 获得了 %@，网络为 %@。</translation>
    </message>
    <message>
        <source>New Network Rule…</source>
        <translation>新建网络规则…</translation>
    </message>
    <message>
        <source>New Login Rule…</source>
        <translation>新建登录规则…</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>%@Hardware Address · %@</source>
        <translation>%@硬件地址 · %@</translation>
    </message>
    <message>
        <source>%@Current Address · %@</source>
        <translation>%@当前地址 · %@</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Randomize</source>
        <translation>随机更改</translation>
    </message>
    <message>
        <source>%@Resume Timer</source>
        <translation>%@继续计时器</translation>
    </message>
    <message>
        <source>%@Pause Timer</source>
        <translation>%@暂停计时器</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>此版本尚未提供</translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation>打开 Quillon</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Saved Networks and Addresses</source>
        <translation>已保存的网络和地址</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>About Quillon</source>
        <translation>关于 Quillon</translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation>退出 Quillon</translation>
    </message>
    <message>
        <source>Looking it up…</source>
        <translation>正在查询…</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>没有应答</translation>
    </message>
    <message>
        <source>Look-up is off</source>
        <translation>查询已关闭</translation>
    </message>
    <message>
        <source>A public service is being asked under which address it sees you.</source>
        <translation>正在向公共服务查询它看到的地址。</translation>
    </message>
    <message>
        <source>The public service did not answer. This is what it said before. The button asks again.</source>
        <translation>公共服务没有应答。这是它上次给出的结果。按按钮可再次查询。</translation>
    </message>
    <message>
        <source>The public service did not answer with an address. The button asks again.</source>
        <translation>公共服务的应答中没有地址。按按钮可再次查询。</translation>
    </message>
    <message>
        <source>It is not looked up by itself. The button asks a public service once.</source>
        <translation>不会自动查询。按按钮可向公共服务查询一次。</translation>
    </message>
    <message>
        <source>Remove Network from Favorites</source>
        <translation>从收藏中移除网络</translation>
    </message>
    <message>
        <source>Add Network to Favorites</source>
        <translation>将网络添加到收藏</translation>
    </message>
    <message>
        <source>Remove Address from Favorites</source>
        <translation>从收藏中移除地址</translation>
    </message>
    <message>
        <source>Add Address to Favorites</source>
        <translation>将地址添加到收藏</translation>
    </message>
    <message>
        <source>Network name</source>
        <translation>网络名称</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全性</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>噪声</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>速率</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>信道</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>MCS</source>
        <translation>MCS</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国家/地区</translation>
    </message>
    <message>
        <source>Wi-Fi is switched off.</source>
        <translation>Wi-Fi 已关闭。</translation>
    </message>
    <message>
        <source>Write it with colons: %@.</source>
        <translation>请用冒号书写：%@。</translation>
    </message>
    <message>
        <source>This is not a MAC address.</source>
        <translation>这不是 MAC 地址。</translation>
    </message>
    <message>
        <source>A MAC address has 12 hexadecimal digits.</source>
        <translation>MAC 地址由 12 位十六进制数字组成。</translation>
    </message>
    <message>
        <source>%@ is saved already.</source>
        <translation>%@ 已经保存。</translation>
    </message>
    <message>
        <source>A network needs its name, too.</source>
        <translation>网络还需要名称。</translation>
    </message>
    <message>
        <source>Group address: most adapters refuse it.</source>
        <translation>组地址：大多数网卡会拒绝它。</translation>
    </message>
    <message>
        <source>Favorite removed</source>
        <translation>已移除收藏</translation>
    </message>
    <message>
        <source>Configure %@</source>
        <translation>配置 %@</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>未活动</translation>
    </message>
    <message>
        <source>Not there</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>Changing…</source>
        <translation>正在更改…</translation>
    </message>
    <message>
        <source>The address is now %@.</source>
        <translation>现在的地址是 %@。</translation>
    </message>
    <message>
        <source>The address is being changed</source>
        <translation>正在更改地址</translation>
    </message>
    <message>
        <source>The interface is not there</source>
        <translation>接口不存在</translation>
    </message>
    <message>
        <source>The helper tool is not installed</source>
        <translation>未安装辅助程序</translation>
    </message>
    <message>
        <source>The interface has no factory address that is known</source>
        <translation>接口的出厂地址未知</translation>
    </message>
    <message>
        <source>The interface has its factory address</source>
        <translation>接口使用的是出厂地址</translation>
    </message>
    <message>
        <source>Gives the interface a random, locally administered address</source>
        <translation>为接口设置一个随机的本地管理地址</translation>
    </message>
    <message>
        <source>Gives the interface its hardware address again</source>
        <translation>让接口恢复其硬件地址</translation>
    </message>
    <message>
        <source>Read the License</source>
        <translation>阅读许可证</translation>
    </message>
    <message>
        <source>The License on the Web</source>
        <translation>网上的许可证</translation>
    </message>
    <message>
        <source>Where Vendors Are Registered</source>
        <translation>厂商在何处注册</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>版本 %@</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or any later version. It comes without any warranty.</source>
        <translation>依据 GNU 通用公共许可证第 3 版或任何更高版本发布的自由软件，不提供任何担保。</translation>
    </message>
    <message>
        <source>No program here opens %@</source>
        <translation>这里没有程序可以打开 %@</translation>
    </message>
    <message>
        <source>Helper: installed, version %@</source>
        <translation>辅助程序：已安装，版本 %@</translation>
    </message>
    <message>
        <source>Helper: not installed</source>
        <translation>辅助程序：未安装</translation>
    </message>
    <message>
        <source>Helper: outdated, version %@</source>
        <translation>辅助程序：已过时，版本 %@</translation>
    </message>
    <message>
        <source>No account yet: there is nowhere to sync with.</source>
        <translation>还没有账户：没有可以同步的位置。</translation>
    </message>
    <message>
        <source>Not while this desktop shows no status items.</source>
        <translation>此桌面环境不显示状态图标时不可用。</translation>
    </message>
    <message>
        <source>Only with the icon in the status bar.</source>
        <translation>仅当状态栏中有图标时。</translation>
    </message>
    <message>
        <source>no program that is known</source>
        <translation>没有已知的程序</translation>
    </message>
    <message>
        <source>This desktop does not start programs at login by itself.</source>
        <translation>此桌面环境不会自行在登录时启动程序。</translation>
    </message>
    <message>
        <source>Whether this desktop starts programs at login cannot be told from here.</source>
        <translation>无法从这里得知此桌面环境是否在登录时启动程序。</translation>
    </message>
    <message>
        <source>The program that starts Quillon at login is not installed.</source>
        <translation>未安装在登录时启动 Quillon 的程序。</translation>
    </message>
    <message>
        <source>The autostart entry is missing or cannot be written. Switch this off and on again to have it made anew.</source>
        <translation>自动启动项缺失或无法写入。请先关闭再打开此项以重新创建。</translation>
    </message>
    <message>
        <source>There still is an autostart entry. Switch this on and off again to have it taken out.</source>
        <translation>仍存在自动启动项。请先打开再关闭此项以将其移除。</translation>
    </message>
    <message>
        <source>The desktop has Quillon switched off in its own list. Switch this off and on again to have it started.</source>
        <translation>桌面环境在自己的列表中关闭了 Quillon。要让它启动，请先关闭再打开此项。</translation>
    </message>
    <message>
        <source>The autostart entry is for other desktops only. Switch this off and on again to have it act here.</source>
        <translation>自动启动项仅用于其他桌面环境。请先关闭再打开此项以使其在这里生效。</translation>
    </message>
    <message>
        <source>There is an autostart entry of your own: it is left as it is.</source>
        <translation>存在您自己的自动启动项：它将保持原样。</translation>
    </message>
    <message>
        <source>GeneralPreferences_en</source>
        <translation>GeneralPreferences_en</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>AdvancedPreferences_en</source>
        <translation>AdvancedPreferences_en</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>DisplayPreferences_en</source>
        <translation>DisplayPreferences_en</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>VendorPreferences_en</source>
        <translation>VendorPreferences_en</translation>
    </message>
    <message>
        <source>Vendor Data</source>
        <translation>厂商数据</translation>
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
        <translation>关于</translation>
    </message>
    <message>
        <source>Type a shortcut</source>
        <translation>请按快捷键</translation>
    </message>
    <message>
        <source>Escape keeps the shortcut of before, Backspace clears it.</source>
        <translation>按 Esc 保留原来的快捷键，按退格键清除。</translation>
    </message>
    <message>
        <source>This key cannot be part of a shortcut.</source>
        <translation>此键不能用作快捷键。</translation>
    </message>
    <message>
        <source>Record Shortcut</source>
        <translation>录制快捷键</translation>
    </message>
    <message>
        <source>The desktop has the last word: its settings show the keys that act.</source>
        <translation>最终由桌面环境决定：其设置中会显示实际生效的按键。</translation>
    </message>
    <message>
        <source>“%@” uses this shortcut.</source>
        <translation>“%@”正在使用此快捷键。</translation>
    </message>
    <message>
        <source>Any Network</source>
        <translation>任意网络</translation>
    </message>
    <message>
        <source>An Unknown Network</source>
        <translation>未知网络</translation>
    </message>
    <message>
        <source>No interface here can be changed.</source>
        <translation>没有可以更改的接口。</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not here any more.</source>
        <translation>此规则针对的 %@ 已不在这里。</translation>
    </message>
    <message>
        <source>Login rules do not act on Wi-Fi.</source>
        <translation>登录规则对 Wi-Fi 不起作用。</translation>
    </message>
    <message>
        <source>The rule was made for %@, which is not saved any more.</source>
        <translation>此规则针对的 %@ 已不再保存。</translation>
    </message>
    <message>
        <source>%@ is not saved: press its heart first.</source>
        <translation>%@ 未保存：请先按下它的心形按钮。</translation>
    </message>
    <message>
        <source>“%@” is no vendor: choose one from the list.</source>
        <translation>“%@”不是厂商：请从列表中选择一个。</translation>
    </message>
    <message>
        <source>Repeated addresses have the vendor of the main window, not this one.</source>
        <translation>重复更改的地址使用主窗口中的厂商，而不是这里的厂商。</translation>
    </message>
    <message>
        <source>Save or cancel this rule before you begin another one.</source>
        <translation>请先保存或取消此规则，再开始另一条。</translation>
    </message>
    <message>
        <source>The rule that was open is not there any more.</source>
        <translation>原来打开的规则已不存在。</translation>
    </message>
    <message>
        <source>Another rule for this interface and network was switched off: only one can be on.</source>
        <translation>此接口和网络的另一条规则已关闭：只能启用一条。</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>The internet cannot be reached now.</source>
        <translation>现在无法连接互联网。</translation>
    </message>
    <message>
        <source>The place to look at is not an https address.</source>
        <translation>要检查的位置不是 https 地址。</translation>
    </message>
    <message>
        <source>The list of versions could not be fetched.</source>
        <translation>无法获取版本列表。</translation>
    </message>
    <message>
        <source>What came is not from the authors of Quillon and was not used.</source>
        <translation>收到的内容不是来自 Quillon 作者，未予使用。</translation>
    </message>
    <message>
        <source>The list of versions that came is out of date and was not used.</source>
        <translation>收到的版本列表已过期，未予使用。</translation>
    </message>
    <message>
        <source>Your system&apos;s software updates bring new versions.</source>
        <translation>新版本由系统的软件更新提供。</translation>
    </message>
    <message>
        <source>It was built without a list of versions to ask for. Nothing is asked, whatever is chosen here.</source>
        <translation>构建时没有可供查询的版本列表。无论这里如何选择，都不会查询。</translation>
    </message>
    <message>
        <source>Last checked: %@</source>
        <translation>上次检查：%@</translation>
    </message>
    <message>
        <source>Not checked yet.</source>
        <translation>尚未检查。</translation>
    </message>
    <message>
        <source>Quillon %@ is available</source>
        <translation>Quillon %@ 可用</translation>
    </message>
    <message>
        <source>This is version %@.</source>
        <translation>当前版本为 %@。</translation>
    </message>
    <message>
        <source>Quillon %@ is the newest version.</source>
        <translation>Quillon %@ 是最新版本。</translation>
    </message>
    <message>
        <source>No browser could be opened.</source>
        <translation>无法打开浏览器。</translation>
    </message>
    <message>
        <source>The list of vendors is missing.</source>
        <translation>缺少厂商列表。</translation>
    </message>
    <message>
        <source>No vendor begins with “%@”.</source>
        <translation>没有以“%@”开头的厂商。</translation>
    </message>
    <message numerus="yes">
        <source>%@ Vendor Identifiers</source>
        <translation>
            <numerusform>%@ 个厂商标识符</numerusform>
        </translation>
    </message>
    <message>
        <source>Update database</source>
        <translation>更新数据库</translation>
    </message>
    <message>
        <source>Getting download information...</source>
        <translation>正在获取下载信息...</translation>
    </message>
    <message>
        <source>Updating Vendor Identifier count...</source>
        <translation>正在更新厂商标识符数量...</translation>
    </message>
    <message>
        <source>Cancel download...</source>
        <translation>取消下载...</translation>
    </message>
    <message>
        <source>Downloading... %@MB</source>
        <translation>正在下载... %@ MB</translation>
    </message>
    <message>
        <source>Downloading... %@% of %@MB</source>
        <translation>正在下载... %@%，共 %@ MB</translation>
    </message>
    <message>
        <source>Download cancelled...</source>
        <translation>下载已取消...</translation>
    </message>
    <message>
        <source>Processing data...</source>
        <translation>正在处理数据...</translation>
    </message>
    <message>
        <source>Parsing file failed...</source>
        <translation>文件解析失败...</translation>
    </message>
    <message>
        <source>Last Updated: %@</source>
        <translation>上次更新：%@</translation>
    </message>
    <message>
        <source>Restoring the previous database...</source>
        <translation>正在恢复以前的数据库...</translation>
    </message>
    <message>
        <source>Restoring failed...</source>
        <translation>恢复失败...</translation>
    </message>
    <message>
        <source>Getting Vendor Identifier count...</source>
        <translation>正在获取厂商标识符数量...</translation>
    </message>
    <message>
        <source>This is the address in use. Type or drop another to change it.</source>
        <translation>这是正在使用的地址。要更改，请输入或拖入另一个地址。</translation>
    </message>
    <message>
        <source>Press Return or Apply to use this address.</source>
        <translation>按回车键或“应用”使用此地址。</translation>
    </message>
    <message>
        <source>Install the helper to change the address.</source>
        <translation>要更改地址，请安装辅助程序。</translation>
    </message>
    <message>
        <source>This interface is not there: select another.</source>
        <translation>此接口不存在：请选择其他接口。</translation>
    </message>
    <message>
        <source>No interface is selected: there is none whose address can be changed</source>
        <translation>未选择接口：没有可以更改地址的接口</translation>
    </message>
    <message>
        <source>The selected interface is not there</source>
        <translation>所选接口不存在</translation>
    </message>
    <message>
        <source>The field holds no other address to apply</source>
        <translation>字段中没有可应用的其他地址</translation>
    </message>
    <message>
        <source>Changing an address needs administrator rights, which Quillon itself never has. A small helper makes the change and nothing else. Installing it asks for an administrator&apos;s password once; Preferences › Advanced removes it again.</source>
        <translation>更改地址需要管理员权限，而 Quillon 本身从不拥有这种权限。一个小型辅助程序负责更改，除此之外什么也不做。安装时会询问一次管理员密码；在“首选项”›“高级”中可以将其移除。</translation>
    </message>
    <message>
        <source>(paused)</source>
        <translation>（已暂停）</translation>
    </message>
    <message>
        <source>...changing MAC Address in %@</source>
        <translation>...%@ 后更改 MAC 地址</translation>
    </message>
    <message>
        <source>Quillon Timer started</source>
        <translation>Quillon 计时器已启动</translation>
    </message>
    <message>
        <source>Quillon</source>
        <translation>Quillon</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made first.</source>
        <translation>改为“%@”生效：它创建得更早。</translation>
    </message>
    <message>
        <source>“%@” is in force instead: this network is not saved.</source>
        <translation>改为“%@”生效：此网络未保存。</translation>
    </message>
    <message>
        <source>“%@” is in force instead: it was made for this network.</source>
        <translation>改为“%@”生效：它是为此网络创建的。</translation>
    </message>
    <message>
        <source>Not in force: %@ is on no network.</source>
        <translation>未生效：%@ 未连接网络。</translation>
    </message>
    <message>
        <source>Not in force: the network in use is saved.</source>
        <translation>未生效：正在使用的网络已保存。</translation>
    </message>
    <message>
        <source>Not in force: another network is in use.</source>
        <translation>未生效：正在使用其他网络。</translation>
    </message>
    <message>
        <source>Not in force: it is switched off.</source>
        <translation>未生效：规则已关闭。</translation>
    </message>
    <message>
        <source>Not in force: %@ is not here.</source>
        <translation>未生效：%@ 不在这里。</translation>
    </message>
    <message>
        <source>Not in force: login rules do not act on Wi-Fi.</source>
        <translation>未生效：登录规则对 Wi-Fi 不起作用。</translation>
    </message>
    <message>
        <source>In force: it acts when Quillon is started at login.</source>
        <translation>已生效：登录时启动 Quillon 后执行。</translation>
    </message>
    <message>
        <source>In force now.</source>
        <translation>现已生效。</translation>
    </message>
    <message>
        <source>In force, but %@ is not connected.</source>
        <translation>已生效，但 %@ 未连接。</translation>
    </message>
    <message>
        <source>Not in force now.</source>
        <translation>现在未生效。</translation>
    </message>
    <message>
        <source>On %@, leave %@ as it is.</source>
        <translation>在 %@ 上，保持 %@ 不变。</translation>
    </message>
    <message>
        <source>On any network, leave %@ as it is.</source>
        <translation>在任意网络上，保持 %@ 不变。</translation>
    </message>
    <message>
        <source>On an unknown network, leave %@ as it is.</source>
        <translation>在未知网络上，保持 %@ 不变。</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address once.</source>
        <translation>在 %@ 上，为 %@ 设置一次随机地址。</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address once.</source>
        <translation>在任意网络上，为 %@ 设置一次随机地址。</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address once.</source>
        <translation>在未知网络上，为 %@ 设置一次随机地址。</translation>
    </message>
    <message>
        <source>At login, give %@ a random address.</source>
        <translation>登录时，为 %@ 设置随机地址。</translation>
    </message>
    <message>
        <source>On %@, give %@ a random address by %@ once.</source>
        <translation>在 %@ 上，为 %@ 设置一次 %@ 的随机地址。</translation>
    </message>
    <message>
        <source>On any network, give %@ a random address by %@ once.</source>
        <translation>在任意网络上，为 %@ 设置一次 %@ 的随机地址。</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ a random address by %@ once.</source>
        <translation>在未知网络上，为 %@ 设置一次 %@ 的随机地址。</translation>
    </message>
    <message>
        <source>At login, give %@ a random address by %@.</source>
        <translation>登录时，为 %@ 设置 %@ 的随机地址。</translation>
    </message>
    <message>
        <source>On %@, give %@ the address %@.</source>
        <translation>在 %@ 上，为 %@ 设置地址 %@。</translation>
    </message>
    <message>
        <source>On any network, give %@ the address %@.</source>
        <translation>在任意网络上，为 %@ 设置地址 %@。</translation>
    </message>
    <message>
        <source>On an unknown network, give %@ the address %@.</source>
        <translation>在未知网络上，为 %@ 设置地址 %@。</translation>
    </message>
    <message>
        <source>At login, give %@ the address %@.</source>
        <translation>登录时，为 %@ 设置地址 %@。</translation>
    </message>
    <message>
        <source>has an Active rule</source>
        <translation>有活动规则</translation>
    </message>
    <message>
        <source>no rules are currently Active</source>
        <translation>当前没有活动规则</translation>
    </message>
    <message>
        <source>no rules have been configured</source>
        <translation>未配置规则</translation>
    </message>
    <message>
        <source>Please sign in to iCloud</source>
        <translation>请登录 iCloud</translation>
    </message>
    <message>
        <source>Open System Settings, and login into your iCloud account to enable sync across all your devices.</source>
        <translation>请打开系统设置并登录 iCloud 账户，以便在所有设备间同步。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Your iCloud account has changed. Do you want to synchronise with the new account?</source>
        <translation>iCloud 账户已更改。要与新账户同步吗？</translation>
    </message>
    <message>
        <source>You are asked this after you have logged in to a new iCloud account, and after the computer was restored from a backup.</source>
        <translation>登录新的 iCloud 账户后，以及计算机从备份恢复后，都会询问此问题。</translation>
    </message>
    <message>
        <source>iCloud</source>
        <translation>iCloud</translation>
    </message>
    <message>
        <source>updates received</source>
        <translation>已收到更新</translation>
    </message>
    <message>
        <source>Account…</source>
        <translation>账户…</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Signs in to the account to sync with</source>
        <translation>登录用于同步的账户</translation>
    </message>
    <message>
        <source>Forgets the account and its passwords on this computer</source>
        <translation>在此计算机上清除该账户及其密码</translation>
    </message>
    <message>
        <source>Sign In</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Sync Account</source>
        <translation>同步账户</translation>
    </message>
    <message>
        <source>Kind of account</source>
        <translation>账户类型</translation>
    </message>
    <message>
        <source>Where the files of the account are</source>
        <translation>账户文件所在的位置</translation>
    </message>
    <message>
        <source>Nextcloud or WebDAV</source>
        <translation>Nextcloud 或 WebDAV</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Encrypts what is stored. The same on all your computers; without it nothing can be read.</source>
        <translation>用于加密所存储的内容。所有计算机使用同一口令；没有它什么也无法读取。</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>口令</translation>
    </message>
    <message>
        <source>What the account holds is replaced by this computer&apos;s settings.</source>
        <translation>账户中的内容将被此计算机的设置替换。</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>Its address, or that of your files there, as a browser shows it</source>
        <translation>服务器的地址，或其中文件的地址，与浏览器显示的一致</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>The name that you have at this server</source>
        <translation>在此服务器上的用户名</translation>
    </message>
    <message>
        <source>App password</source>
        <translation>应用专用密码</translation>
    </message>
    <message>
        <source>Made in the security settings of your account at the server</source>
        <translation>在服务器账户的安全设置中创建</translation>
    </message>
    <message>
        <source>Kept in your keyring.</source>
        <translation>保存在密钥环中。</translation>
    </message>
    <message>
        <source>One that another program makes equal on your computers.</source>
        <translation>由其他程序在各台计算机间保持一致的文件夹。</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Looks for it in your files</source>
        <translation>在文件中查找</translation>
    </message>
    <message>
        <source>Repeat passphrase</source>
        <translation>重复口令</translation>
    </message>
    <message>
        <source>The account is new: nobody can tell you later what you typed</source>
        <translation>这是新账户：以后没有人能告知所输入的内容</translation>
    </message>
    <message>
        <source>This is the SHA-256 fingerprint of the server&apos;s certificate. Accept it only if the server&apos;s administrator tells you the same one.</source>
        <translation>这是服务器证书的 SHA-256 指纹。仅当服务器管理员告知的指纹与此相同时才接受。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy Fingerprint</source>
        <translation>复制指纹</translation>
    </message>
    <message>
        <source>To compare it in another window</source>
        <translation>以便在其他窗口中比对</translation>
    </message>
    <message>
        <source>Accept Certificate</source>
        <translation>接受证书</translation>
    </message>
    <message>
        <source>Signs in, and trusts this certificate for this account from now on</source>
        <translation>登录，并从此在此账户中信任该证书</translation>
    </message>
    <message>
        <source>Gives up what is under way, or closes</source>
        <translation>放弃正在进行的操作，或关闭</translation>
    </message>
    <message>
        <source>Signing In…</source>
        <translation>正在登录…</translation>
    </message>
    <message>
        <source>Tries the account, and switches sync on</source>
        <translation>测试账户并开启同步</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Return saves the note, Escape gives it up.</source>
        <translation>按回车键保存备注，按 Esc 放弃。</translation>
    </message>
    <message>
        <source>F2 edits the note, Delete deletes.</source>
        <translation>按 F2 编辑备注，按 Delete 删除。</translation>
    </message>
    <message>
        <source>Save Addresses</source>
        <translation>保存地址</translation>
    </message>
    <message>
        <source>Adds the addresses of the selected records to the saved ones.</source>
        <translation>将所选记录的地址添加到已保存的地址。</translation>
    </message>
    <message>
        <source>Save Networks</source>
        <translation>保存网络</translation>
    </message>
    <message>
        <source>Adds the networks of the selected records to the saved ones.</source>
        <translation>将所选记录的网络添加到已保存的网络。</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Writes what is listed into a file that spreadsheets read.</source>
        <translation>将列出的内容写入电子表格程序可读取的文件。</translation>
    </message>
    <message>
        <source>Deletes the selected records.</source>
        <translation>删除所选记录。</translation>
    </message>
    <message>
        <source>Upper and lower case matter.</source>
        <translation>区分大小写。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>What is done stays done.</source>
        <translation>已完成的部分不会撤消。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Edit Note</source>
        <translation>编辑备注</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>排序方式</translation>
    </message>
    <message>
        <source>Reverse Order</source>
        <translation>反向排序</translation>
    </message>
    <message>
        <source>Export History</source>
        <translation>导出历史记录</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>File menu</source>
        <translation>文件菜单</translation>
    </message>
    <message>
        <source>File menu (F10)</source>
        <translation>文件菜单 (F10)</translation>
    </message>
    <message>
        <source>External address</source>
        <translation>外部地址</translation>
    </message>
    <message>
        <source>Refresh external address</source>
        <translation>刷新外部地址</translation>
    </message>
    <message>
        <source>Asks a public service under which address it sees you</source>
        <translation>向公共服务查询它看到的地址</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>名称（可选）</translation>
    </message>
    <message>
        <source>Saved addresses</source>
        <translation>已保存的地址</translation>
    </message>
    <message>
        <source>Add the current address with the heart.</source>
        <translation>用心形按钮添加当前地址。</translation>
    </message>
    <message>
        <source>Edit Saved Items</source>
        <translation>编辑已保存的项目</translation>
    </message>
    <message>
        <source>Opens the window of saved networks and addresses</source>
        <translation>打开已保存的网络和地址窗口</translation>
    </message>
    <message>
        <source>Click to put one into the field, or drag it there.</source>
        <translation>单击可将地址放入字段，也可以拖到那里。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Join a network and press its heart.</source>
        <translation>加入一个网络并按下它的心形按钮。</translation>
    </message>
    <message>
        <source>Network…</source>
        <translation>网络…</translation>
    </message>
    <message>
        <source>Save a network by hand</source>
        <translation>手动保存网络</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Open the saved addresses and press the heart.</source>
        <translation>打开已保存的地址并按下心形按钮。</translation>
    </message>
    <message>
        <source>Address…</source>
        <translation>地址…</translation>
    </message>
    <message>
        <source>Save an address by hand</source>
        <translation>手动保存地址</translation>
    </message>
    <message>
        <source>Import from History</source>
        <translation>从历史记录导入</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>正在导入…</translation>
    </message>
    <message>
        <source>Save the addresses and networks that the history knows</source>
        <translation>保存历史记录中已知的地址和网络</translation>
    </message>
    <message>
        <source>Recognize by</source>
        <translation>识别方式</translation>
    </message>
    <message>
        <source>Name %@</source>
        <translation>名称 %@</translation>
    </message>
    <message>
        <source>Access point %@</source>
        <translation>接入点 %@</translation>
    </message>
    <message>
        <source>Pause the countdown of %@</source>
        <translation>暂停 %@ 的倒计时</translation>
    </message>
    <message>
        <source>Resume the countdown of %@</source>
        <translation>继续 %@ 的倒计时</translation>
    </message>
    <message>
        <source>Countdown paused</source>
        <translation>倒计时已暂停</translation>
    </message>
    <message>
        <source>Countdown resumed</source>
        <translation>倒计时已继续</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>硬件</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>Hardware %@</source>
        <translation>硬件 %@</translation>
    </message>
    <message>
        <source>Vendor %@</source>
        <translation>厂商 %@</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>当前地址</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>Randomizing…</source>
        <translation>正在随机更改…</translation>
    </message>
    <message>
        <source>Rules of %@</source>
        <translation>%@ 的规则</translation>
    </message>
    <message>
        <source>Randomize %@</source>
        <translation>随机更改 %@</translation>
    </message>
    <message>
        <source>Randomizing %@</source>
        <translation>正在随机更改 %@</translation>
    </message>
    <message>
        <source>Restore the hardware address of %@</source>
        <translation>恢复 %@ 的硬件地址</translation>
    </message>
    <message>
        <source>Restoring the hardware address of %@</source>
        <translation>正在恢复 %@ 的硬件地址</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Reads the interfaces and their addresses anew</source>
        <translation>重新读取接口及其地址</translation>
    </message>
    <message>
        <source>There are interfaces that are not listed here yet.</source>
        <translation>有些接口尚未列在这里。</translation>
    </message>
    <message>
        <source>The list shows the addresses as they were when it was opened.</source>
        <translation>列表显示的是打开时的地址。</translation>
    </message>
    <message>
        <source>&amp;Install Helper</source>
        <translation>安装辅助程序(&amp;I)</translation>
    </message>
    <message>
        <source>The helper is not installed</source>
        <translation>未安装辅助程序</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>正在安装…</translation>
    </message>
    <message>
        <source>Install helper</source>
        <translation>安装辅助程序</translation>
    </message>
    <message>
        <source>Asks for an administrator&apos;s password</source>
        <translation>需要输入管理员密码</translation>
    </message>
    <message>
        <source>By the Quillon authors</source>
        <translation>由 Quillon 作者开发</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>卸载</translation>
    </message>
    <message>
        <source>Ask when another program replaces an address</source>
        <translation>其他程序替换地址时询问</translation>
    </message>
    <message>
        <source>Who manages each interface</source>
        <translation>各接口由谁管理</translation>
    </message>
    <message>
        <source>Uninstalling…</source>
        <translation>正在卸载…</translation>
    </message>
    <message>
        <source>Repeat every %@ minutes by default</source>
        <translation>默认每 %@ 分钟重复</translation>
    </message>
    <message>
        <source>For rules whose own minutes are left empty</source>
        <translation>用于未填写分钟数的规则</translation>
    </message>
    <message>
        <source>Capital letters</source>
        <translation>大写字母</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>小写字母</translation>
    </message>
    <message>
        <source>Letters of addresses</source>
        <translation>地址中的字母</translation>
    </message>
    <message>
        <source>Look up the external address</source>
        <translation>查询外部地址</translation>
    </message>
    <message>
        <source>Asks a public service whenever the network changes.</source>
        <translation>每当网络改变时向公共服务查询。</translation>
    </message>
    <message>
        <source>Start Quillon at login</source>
        <translation>登录时启动 Quillon</translation>
    </message>
    <message>
        <source>Do not open the window at login</source>
        <translation>登录时不打开窗口</translation>
    </message>
    <message>
        <source>Show in the status bar</source>
        <translation>在状态栏中显示</translation>
    </message>
    <message>
        <source>Hide from the task bar</source>
        <translation>不在任务栏中显示</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>显示通知</translation>
    </message>
    <message>
        <source>Shortcuts that work in every window</source>
        <translation>在所有窗口中都有效的快捷键</translation>
    </message>
    <message>
        <source>Sync settings, rules and history</source>
        <translation>同步设置、规则和历史记录</translation>
    </message>
    <message>
        <source>Shortcut for “%@”</source>
        <translation>“%@”的快捷键</translation>
    </message>
    <message>
        <source>Clear the shortcut for “%@”</source>
        <translation>清除“%@”的快捷键</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Countdown ended</source>
        <translation>倒计时已结束</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>Save Rule</source>
        <translation>保存规则</translation>
    </message>
    <message>
        <source>Do Nothing</source>
        <translation>不执行任何操作</translation>
    </message>
    <message>
        <source>Change Address</source>
        <translation>更改地址</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>一次</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>每隔</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>New Random Address</source>
        <translation>新建随机地址</translation>
    </message>
    <message>
        <source>Makes a random address, saves it, and uses it whenever the rule acts</source>
        <translation>生成并保存一个随机地址，每次规则执行时都使用它</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>厂商</translation>
    </message>
    <message>
        <source>New rules start switched off.</source>
        <translation>新规则最初处于关闭状态。</translation>
    </message>
    <message>
        <source>Press Return to rename the rule</source>
        <translation>按回车键重命名规则</translation>
    </message>
    <message>
        <source>Active rule</source>
        <translation>活动规则</translation>
    </message>
    <message>
        <source>No active rules</source>
        <translation>没有活动规则</translation>
    </message>
    <message>
        <source>No rules</source>
        <translation>没有规则</translation>
    </message>
    <message>
        <source>No rule for this interface.</source>
        <translation>此接口没有规则。</translation>
    </message>
    <message>
        <source>Edit Rules</source>
        <translation>编辑规则</translation>
    </message>
    <message>
        <source>Opens the rule editor</source>
        <translation>打开规则编辑器</translation>
    </message>
    <message>
        <source>Rules change the address when you join a network.</source>
        <translation>规则会在加入网络时更改地址。</translation>
    </message>
    <message>
        <source>New Network Rule</source>
        <translation>新建网络规则</translation>
    </message>
    <message>
        <source>Network Rule</source>
        <translation>网络规则</translation>
    </message>
    <message>
        <source>New network rule</source>
        <translation>新建网络规则</translation>
    </message>
    <message>
        <source>Login Rule</source>
        <translation>登录规则</translation>
    </message>
    <message>
        <source>New login rule</source>
        <translation>新建登录规则</translation>
    </message>
    <message>
        <source>Edit the rule (Return)</source>
        <translation>编辑规则 (Return)</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制规则</translation>
    </message>
    <message>
        <source>Duplicate the rules (Ctrl+D)</source>
        <translation>复制所选规则 (Ctrl+D)</translation>
    </message>
    <message>
        <source>Delete the rules (Delete)</source>
        <translation>删除规则 (Delete)</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>No name</source>
        <translation>没有名称</translation>
    </message>
    <message>
        <source>Saved Items</source>
        <translation>已保存的项目</translation>
    </message>
    <message>
        <source>Open Page</source>
        <translation>打开页面</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>新增内容</translation>
    </message>
    <message>
        <source>Show it in the software center, or in the browser</source>
        <translation>在软件中心或浏览器中显示</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Check for new versions</source>
        <translation>检查新版本</translation>
    </message>
    <message>
        <source>Open a new version&apos;s page</source>
        <translation>打开新版本的页面</translation>
    </message>
    <message>
        <source>This copy of Quillon does not look for new versions.</source>
        <translation>此 Quillon 不检查新版本。</translation>
    </message>
    <message>
        <source>How often</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>At once, in the software center or the browser. Quillon itself downloads and installs nothing.</source>
        <translation>立即在软件中心或浏览器中打开。Quillon 本身不下载也不安装任何内容。</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>Only while Quillon checks by itself</source>
        <translation>仅当 Quillon 自动检查时</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Pause or Resume Timer</source>
        <translation>暂停或继续计时器</translation>
    </message>
    <message>
        <source>Open the preferences where the list of vendors is downloaded</source>
        <translation>打开用于下载厂商列表的首选项</translation>
    </message>
    <message>
        <source>&amp;Vendor</source>
        <translation>厂商(&amp;V)</translation>
    </message>
    <message>
        <source>Vendor of random addresses</source>
        <translation>随机地址的厂商</translation>
    </message>
    <message>
        <source>Type the beginning of a name, then choose from the list</source>
        <translation>输入名称的开头，然后从列表中选择</translation>
    </message>
    <message>
        <source>Hide vendors</source>
        <translation>隐藏厂商</translation>
    </message>
    <message>
        <source>Show vendors</source>
        <translation>显示厂商</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>注册库</translation>
    </message>
    <message>
        <source>Bring back the vendors from before the last update</source>
        <translation>恢复上次更新之前的厂商数据</translation>
    </message>
    <message>
        <source>The vendors from before the last update are being brought back</source>
        <translation>正在恢复上次更新之前的厂商数据</translation>
    </message>
    <message>
        <source>Not while the database is being updated</source>
        <translation>数据库更新期间不可用</translation>
    </message>
    <message>
        <source>There are no vendors from before an update</source>
        <translation>没有更新之前的厂商数据</translation>
    </message>
    <message>
        <source>Not while the vendors from before are being brought back</source>
        <translation>恢复以前的厂商数据期间不可用</translation>
    </message>
    <message>
        <source>Restore previous</source>
        <translation>恢复以前的数据</translation>
    </message>
    <message>
        <source>Progress of the download</source>
        <translation>下载进度</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>厂商</translation>
    </message>
    <message>
        <source>Signal and noise are not known</source>
        <translation>信号和噪声未知</translation>
    </message>
    <message>
        <source>Signal %@</source>
        <translation>信号 %@</translation>
    </message>
    <message>
        <source>Noise %@</source>
        <translation>噪声 %@</translation>
    </message>
    <message>
        <source>Signal %@, noise %@</source>
        <translation>信号 %@，噪声 %@</translation>
    </message>
    <message>
        <source>Signal and noise over the last five minutes</source>
        <translation>最近五分钟的信号和噪声</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 分钟</translation>
    </message>
    <message>
        <source>What to search</source>
        <translation>搜索范围</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Randomize</source>
        <translation>随机更改(&amp;R)</translation>
    </message>
    <message>
        <source>A&amp;ddress</source>
        <translation>地址(&amp;D)</translation>
    </message>
    <message>
        <source>The address in use is not the hardware address</source>
        <translation>正在使用的地址不是硬件地址</translation>
    </message>
    <message>
        <source>Apply address</source>
        <translation>应用地址</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>正在应用…</translation>
    </message>
    <message>
        <source>Changed: the address in use is not the hardware address</source>
        <translation>已更改：正在使用的地址不是硬件地址</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits. Return applies the address.</source>
        <translation>十二位十六进制数字。按回车键应用地址。</translation>
    </message>
    <message>
        <source>Gives the interface the address in the field</source>
        <translation>将字段中的地址赋予接口</translation>
    </message>
    <message>
        <source>Twelve hexadecimal digits, with or without colons. Return applies the address.</source>
        <translation>十二位十六进制数字，可带或不带冒号。按回车键应用地址。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>The address the device was made with.</source>
        <translation>设备出厂时的地址。</translation>
    </message>
    <message>
        <source>Restore hardware address</source>
        <translation>恢复硬件地址</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>正在恢复…</translation>
    </message>
    <message>
        <source>Gives the interface the address back that it was made with</source>
        <translation>让接口恢复出厂时的地址</translation>
    </message>
    <message>
        <source>Hardware address</source>
        <translation>硬件地址</translation>
    </message>
    <message>
        <source>Link active</source>
        <translation>链路已连接</translation>
    </message>
    <message>
        <source>Link inactive</source>
        <translation>链路未连接</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4 地址</translation>
    </message>
    <message>
        <source>The network interface whose address is shown and changed</source>
        <translation>显示和更改其地址的网络接口</translation>
    </message>
    <message>
        <source>What is the helper?</source>
        <translation>什么是辅助程序？</translation>
    </message>
    <message>
        <source>About the helper</source>
        <translation>关于辅助程序</translation>
    </message>
    <message>
        <source>Helper hint</source>
        <translation>辅助程序提示</translation>
    </message>
    <message>
        <source>What is new is in Preferences › Updates.</source>
        <translation>新增内容见“首选项”›“更新”。</translation>
    </message>
    <message>
        <source>Only a random address has a vendor</source>
        <translation>只有随机地址才有厂商</translation>
    </message>
    <message>
        <source>No interface is selected: there is none to choose a vendor for</source>
        <translation>未选择接口：没有可为其选择厂商的接口</translation>
    </message>
    <message numerus="yes">
        <source>%@ (added %@ new Identifiers)</source>
        <translation>
            <numerusform>%@ (新增 %@ 个标识符)</numerusform>
        </translation>
    </message>
    <message>
        <source>Getting Vendor infomation...</source>
        <translation>正在获取厂商信息...</translation>
    </message>
    <message>
        <source>No Vendor Information available...</source>
        <translation>没有厂商信息...</translation>
    </message>
    <message numerus="yes">
        <source>%Ln were saved. Save again for more.</source>
        <translation>
            <numerusform>已保存 %Ln 条。再次保存可继续。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records selected</source>
        <translation>
            <numerusform>已选择 %Ln 条记录</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records deleted</source>
        <translation>
            <numerusform>已删除 %Ln 条记录</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %Ln records?</source>
        <translation>
            <numerusform>删除 %Ln 条记录？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses</source>
        <translation>
            <numerusform>%Ln 个地址</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks</source>
        <translation>
            <numerusform>%Ln 个网络</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln networks added.</source>
        <translation>
            <numerusform>已添加 %Ln 个网络。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln addresses added.</source>
        <translation>
            <numerusform>已添加 %Ln 个地址。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records</source>
        <translation>
            <numerusform>%Ln 条记录</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%@ of %Ln records</source>
        <translation>
            <numerusform>%@ 条，共 %Ln 条记录</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On %@, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>在 %@ 上，为 %@ 每 %n 分钟设置新的随机地址。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On any network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>在任意网络上，为 %@ 每 %n 分钟设置新的随机地址。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>On an unknown network, give %@ a new random address every %n minutes.</source>
        <translation>
            <numerusform>在未知网络上，为 %@ 每 %n 分钟设置新的随机地址。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules deleted</source>
        <translation>
            <numerusform>已删除 %Ln 条规则</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records exported</source>
        <translation>
            <numerusform>已导出 %Ln 条记录</numerusform>
        </translation>
    </message>
    <message>
        <source>Sign in to the account first.</source>
        <translation>请先登录账户。</translation>
    </message>
    <message>
        <source>Enter the current passphrase.</source>
        <translation>请输入当前口令。</translation>
    </message>
    <message>
        <source>Enter a new passphrase.</source>
        <translation>请输入新口令。</translation>
    </message>
    <message>
        <source>The new passphrase is the current one.</source>
        <translation>新口令与当前口令相同。</translation>
    </message>
    <message>
        <source>Another computer has just changed the key file. Try again with the passphrase that holds now.</source>
        <translation>另一台计算机刚刚更改了密钥文件。请用现在有效的口令重试。</translation>
    </message>
    <message>
        <source>The connection was lost. Either the new passphrase or the current one opens the account now.</source>
        <translation>连接已断开。现在能打开账户的是新口令或原口令之一。</translation>
    </message>
    <message>
        <source>Another computer has changed the passphrase at the same time. That one holds now.</source>
        <translation>另一台计算机同时更改了口令。现在以那个口令为准。</translation>
    </message>
    <message>
        <source>This is not the current passphrase.</source>
        <translation>这不是当前口令。</translation>
    </message>
    <message>
        <source>Another key is in the account: somebody has made it anew, or changed it. Nothing is synced until you sign in again.</source>
        <translation>账户中是另一个密钥：有人重新创建或更改了账户。重新登录之前不会同步任何内容。</translation>
    </message>
    <message>
        <source>Reading the account&apos;s key file…</source>
        <translation>正在读取账户的密钥文件…</translation>
    </message>
    <message>
        <source>Writing the account&apos;s key file…</source>
        <translation>正在写入账户的密钥文件…</translation>
    </message>
    <message>
        <source>The passphrase was changed. Your other computers stay signed in.</source>
        <translation>口令已更改。其他计算机保持登录状态。</translation>
    </message>
    <message>
        <source>What the network still sees</source>
        <translation>网络仍能看到的内容</translation>
    </message>
    <message>
        <source>What the network of %@ still sees</source>
        <translation>%@ 的网络仍能看到的内容</translation>
    </message>
    <message>
        <source>No interface is selected.</source>
        <translation>未选择接口。</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>正在查看…</translation>
    </message>
    <message>
        <source>Nothing but the address is known to tell who this is.</source>
        <translation>除地址外，没有已知信息会暴露此计算机的身份。</translation>
    </message>
    <message>
        <source>Made from the current address</source>
        <translation>由当前地址生成</translation>
    </message>
    <message>
        <source>Made from the hardware address</source>
        <translation>由硬件地址生成</translation>
    </message>
    <message>
        <source>Made from another address</source>
        <translation>由另一个地址生成</translation>
    </message>
    <message>
        <source>Made for this network</source>
        <translation>为此网络生成</translation>
    </message>
    <message>
        <source>Made for this computer</source>
        <translation>为此计算机生成</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Changes with the address.</source>
        <translation>随地址变化。</translation>
    </message>
    <message>
        <source>Changes by itself after a time.</source>
        <translation>一段时间后自动变化。</translation>
    </message>
    <message>
        <source>Stays the same on this network.</source>
        <translation>在此网络上保持不变。</translation>
    </message>
    <message>
        <source>Stays the same on every network.</source>
        <translation>在所有网络上保持不变。</translation>
    </message>
    <message>
        <source>Gives the hardware address away.</source>
        <translation>会泄露硬件地址。</translation>
    </message>
    <message>
        <source>Gives an earlier address, or that of another interface, away.</source>
        <translation>会泄露以前的地址或另一接口的地址。</translation>
    </message>
    <message>
        <source>Who sets it does not tell.</source>
        <translation>设置它的程序未提供信息。</translation>
    </message>
    <message>
        <source>Whether it changes with the address is not known.</source>
        <translation>不清楚是否随地址变化。</translation>
    </message>
    <message>
        <source>Kept across the change, since %@.</source>
        <translation>更改地址后仍保留，自 %@ 起。</translation>
    </message>
    <message>
        <source>To show less: %@</source>
        <translation>若要减少暴露：%@</translation>
    </message>
    <message>
        <source>To show less, in %@: %@</source>
        <translation>若要减少暴露，在 %@ 中：%@</translation>
    </message>
    <message>
        <source>Name sent with DHCP</source>
        <translation>通过 DHCP 发送的名称</translation>
    </message>
    <message>
        <source>DHCP client identifier</source>
        <translation>DHCP 客户端标识符</translation>
    </message>
    <message>
        <source>DHCPv6 identifier (DUID)</source>
        <translation>DHCPv6 标识符（DUID）</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>IPv6 地址</translation>
    </message>
    <message>
        <source>More IPv6 addresses</source>
        <translation>更多 IPv6 地址</translation>
    </message>
    <message>
        <source>Name told by mDNS</source>
        <translation>通过 mDNS 公布的名称</translation>
    </message>
    <message>
        <source>Name told by LLMNR</source>
        <translation>通过 LLMNR 公布的名称</translation>
    </message>
    <message>
        <source>Login name (802.1X)</source>
        <translation>登录名（802.1X）</translation>
    </message>
    <message>
        <source>Change Passphrase…</source>
        <translation>更改口令…</translation>
    </message>
    <message>
        <source>Gives the account another passphrase, for all computers</source>
        <translation>为账户设置另一个口令，适用于所有计算机</translation>
    </message>
    <message>
        <source>Change Passphrase</source>
        <translation>更改口令</translation>
    </message>
    <message>
        <source>From then on the account is opened by the new passphrase</source>
        <translation>此后用新口令打开账户</translation>
    </message>
    <message>
        <source>Current passphrase</source>
        <translation>当前口令</translation>
    </message>
    <message>
        <source>The one with which you signed in</source>
        <translation>登录时使用的口令</translation>
    </message>
    <message>
        <source>New passphrase</source>
        <translation>新口令</translation>
    </message>
    <message>
        <source>At least eight characters. Nobody can tell you later what you typed.</source>
        <translation>至少八个字符。以后没有人能告知所输入的内容。</translation>
    </message>
    <message>
        <source>Repeat new passphrase</source>
        <translation>重复新口令</translation>
    </message>
    <message>
        <source>The same once more</source>
        <translation>再输入一次相同的口令</translation>
    </message>
    <message>
        <source>Your other computers stay signed in. Copies of the account that somebody has made before still open with the current passphrase.</source>
        <translation>其他计算机保持登录状态。以前制作的账户副本仍用当前口令打开。</translation>
    </message>
</context>
</TS>
