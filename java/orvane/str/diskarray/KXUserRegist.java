package orvane.str.diskarray;

public class KXUserRegist {
    public int num;
    public int option;
}
