package orvane.str.diskarray;

public class WWNPortInfo {
    public int lun_security;
    public int permission_count;
    public int security_chk_lv;
    public WWNPermInfo[] permission;
}
