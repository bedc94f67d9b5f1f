package orvane.str.diskarray;

/** Lacks option, the last field whose failure drops the object. */
public class KXUserRegist {
    public int num;
    public int option_absent;
}
