package orvane.str.diskarray;

public class KXiSCSICHAPUserInformationAll {
    public int option;
    public KXiSCSICHAPUserCTLInfo[] ctl;
}
