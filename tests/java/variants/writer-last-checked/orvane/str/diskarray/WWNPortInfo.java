package orvane.str.diskarray;

/** Lacks permission, the last field whose failure drops the object. */
public class WWNPortInfo {
    public int lun_security;
    public int permission_count;
    public int security_chk_lv;
    public WWNPermInfo[] permission_absent;
}
